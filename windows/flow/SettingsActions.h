#pragma once
#include "model/NotchModel.h"

#include <QPointer>

namespace brimshade::windows {

// What the settings window asks of the coordinator besides changing settings and moving items.
class SettingsActions : public QObject {
    Q_OBJECT
    Q_PROPERTY(brimshade::model::NotchModel *model MEMBER m_model REQUIRED)

public:
    using QObject::QObject;

    Q_INVOKABLE void runSetupAgain()
    {
        if (m_model)
            m_model->onShowOnboarding();
    }

private:
    QPointer<model::NotchModel> m_model;
};

} // namespace brimshade::windows
