#pragma once
#include "model/NotchModel.h"

#include <QObject>
#include <QPointer>
#include <qqml.h>

namespace brimshade::panel {

// The panel's texts and states, derived from the model, and a way to those of the model's callbacks that no tile calls.
class PanelState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::model::NotchModel *source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(bool isPaced MEMBER m_isPaced NOTIFY isPacedChanged) // see TilesModel
    Q_PROPERTY(bool isUnseen MEMBER m_isUnseen NOTIFY isUnseenChanged) // the same
    Q_PROPERTY(Body body READ body NOTIFY bodyChanged)
    Q_PROPERTY(bool hasHeader READ hasHeader NOTIFY bodyChanged)
    Q_PROPERTY(QString sentence READ sentence NOTIFY bodyChanged) // instead of tiles; empty when there are some
    Q_PROPERTY(QString highlightedID READ highlightedID NOTIFY focusChanged) // empty: no tile
    Q_PROPERTY(QString focusID READ focusID NOTIFY focusChanged) // of the footer's item; empty: the hint
    Q_PROPERTY(QString focusText READ focusText NOTIFY focusChanged)
    Q_PROPERTY(QString hint READ hint CONSTANT)
    Q_PROPERTY(QString briefHint READ briefHint CONSTANT) // where the longer one has no room

public:
    enum Body { Permission, Recorder, Waiting, NoItems, Tiles };
    Q_ENUM(Body)

    using QObject::QObject;

    model::NotchModel *source() const { return m_source; }
    void setSource(model::NotchModel *source);

    Body body() const;
    bool hasHeader() const;
    QString sentence() const;
    Q_INVOKABLE QString sentenceNaming(const QString &query) const; // the same, with less of the query
    QString highlightedID() const;
    QString focusID() const;
    QString focusText() const;
    QString hint() const;
    QString briefHint() const;

    Q_INVOKABLE void dismiss();
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void sourceChanged();
    void isPacedChanged();
    void isUnseenChanged();
    void bodyChanged();
    void focusChanged();

private:
    const model::MenuExtra *focused() const;

    QPointer<model::NotchModel> m_source;
    bool m_isPaced = false;
    bool m_isUnseen = false;
};

} // namespace brimshade::panel
