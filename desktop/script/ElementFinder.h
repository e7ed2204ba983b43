#pragma once
#include <QJsonObject>
#include <QRectF>
#include <QString>
#include <vector>

namespace brimshade::desktop {

class ScriptHost;

// One element of the accessibility tree that a person could see now.
struct FoundElement {
    QString window; // the name of the program's window that holds it, "desktop" outside any
    QString role; // the toolkit's name: "Button", "CheckBox"
    QString name;
    QString description;
    QRectF frame; // display space; the part that is not clipped away
    bool isEnabled = true;
    bool isCheckable = false;
    bool isChecked = false;
    bool isInteractive = false;
    double opacity = 1; // effective

    QJsonObject toJson() const;
};

// Every visible element in reading order: effective opacity above 0.01, some part not clipped away, its window on
// screen. Main thread; geometry must be settled.
std::vector<FoundElement> visibleElements(const ScriptHost &host);

} // namespace brimshade::desktop
