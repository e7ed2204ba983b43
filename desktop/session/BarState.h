#pragma once
#include "desktop/core/BarText.h"
#include "desktop/views/BarModel.h"
#include "desktop/views/WallClock.h"

namespace brimshade::desktop::session {

// What the bar of a session shows. Main thread; display space.
class BarState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a session")
    Q_PROPERTY(brimshade::desktop::BarModel *items READ items CONSTANT)
    Q_PROPERTY(QString applicationName READ applicationName NOTIFY changed)
    Q_PROPERTY(double nameMargin READ nameMargin CONSTANT)
    Q_PROPERTY(bool isTranslucent READ isTranslucent NOTIFY changed)

public:
    BarState(const MenuBar &bar, const WallClock &clock) : m_items(bar, clock) { }

    BarModel *items() { return &m_items; }
    QString applicationName() const { return m_applicationName; } // of the focused one; empty for none
    double nameMargin() const { return kNameMargin; }
    bool isTranslucent() const { return m_isTranslucent; } // what is behind it shows through

    void setApplicationName(const QString &name)
    {
        if (std::exchange(m_applicationName, name) != name)
            Q_EMIT changed();
    }
    void setTranslucent(bool translucent)
    {
        if (std::exchange(m_isTranslucent, translucent) != translucent)
            Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    BarModel m_items;
    QString m_applicationName;
    bool m_isTranslucent = true;
};

} // namespace brimshade::desktop::session
