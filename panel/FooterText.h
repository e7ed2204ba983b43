#pragma once
#include "PanelState.h"

#include <QObject>
#include <QPointer>
#include <qqml.h>

namespace brimshade::panel {

// The footer's line and the one it replaced. A change to another item, or to none, makes a new line; a changed text of
// the same item does not.
class FooterText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::panel::PanelState *state READ state WRITE setState NOTIFY stateChanged REQUIRED)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool isHint READ isHint NOTIFY changed)
    Q_PROPERTY(QString leavingText READ leavingText NOTIFY changed)
    Q_PROPERTY(bool leavingIsHint READ leavingIsHint NOTIFY changed)

public:
    using QObject::QObject;

    PanelState *state() const { return m_state; }
    void setState(PanelState *state);
    QString text() const { return m_line.text; }
    bool isHint() const { return m_line.id.isEmpty(); }
    QString leavingText() const { return m_leaving.text; }
    bool leavingIsHint() const { return m_leaving.id.isEmpty(); }

Q_SIGNALS:
    void stateChanged();
    void changed();
    void replaced(); // after changed

private:
    struct Line {
        QString id; // empty: the hint
        QString text;
    };

    void update();

    QPointer<PanelState> m_state;
    Line m_line;
    Line m_leaving;
};

} // namespace brimshade::panel
