#pragma once
#include "platform/MenuBarPreferences.h"

#include <QObject>
#include <QStringList>

namespace brimshade::windows {

// The menu bar's preferences as pickers want them. Main thread; the preferences outlive it.
class MenuBarChoices : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QString> screens READ screens NOTIFY changed)
    Q_PROPERTY(int screen READ screen NOTIFY changed)
    Q_PROPERTY(QList<QString> notches READ notches NOTIFY changed)
    Q_PROPERTY(int notch READ notch NOTIFY changed)
    Q_PROPERTY(bool hasWidth READ hasWidth NOTIFY changed)
    Q_PROPERTY(QList<QString> widths READ widths NOTIFY changed)
    Q_PROPERTY(int width READ width NOTIFY changed)
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    Q_PROPERTY(QString shortcutAdvice READ shortcutAdvice NOTIFY changed)

public:
    explicit MenuBarChoices(platform::MenuBarPreferences &preferences);
    ~MenuBarChoices() override;

    QStringList screens() const; // the automatic choice first
    int screen() const;
    Q_INVOKABLE void chooseScreen(int index);

    QStringList notches() const;
    int notch() const;
    Q_INVOKABLE void chooseNotch(int index);

    bool hasWidth() const;
    QStringList widths() const;
    int width() const;
    Q_INVOKABLE void chooseWidth(int index);

    QString advice() const { return m_preferences.advice(); }
    QString shortcutAdvice() const { return m_preferences.shortcutAdvice(); }

Q_SIGNALS:
    void changed();

private:
    QStringList screenNames() const; // including a chosen one that is not there now
    QList<double> offeredWidths() const;

    platform::MenuBarPreferences &m_preferences;
};

} // namespace brimshade::windows
