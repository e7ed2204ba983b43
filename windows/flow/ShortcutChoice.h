#pragma once
#include "model/NotchModel.h"

#include <QPointer>
#include <QStringList>

namespace brimshade::windows {

// The global shortcut as a picker wants it: the titles of all of them and the index of the chosen one.
class ShortcutChoice : public QObject {
    Q_OBJECT
    Q_PROPERTY(brimshade::model::NotchModel *model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QList<QString> titles READ titles CONSTANT)
    Q_PROPERTY(int index READ index NOTIFY indexChanged)

public:
    using QObject::QObject;

    model::NotchModel *model() const { return m_model; }
    void setModel(model::NotchModel *model);
    QStringList titles() const;
    int index() const;
    Q_INVOKABLE void choose(int index); // ignored when out of range

Q_SIGNALS:
    void modelChanged();
    void indexChanged();

private:
    QPointer<model::NotchModel> m_model;
};

} // namespace brimshade::windows
