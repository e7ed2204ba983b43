#include "AutostartEntry.h"

#include <QMap>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

// A value of type string.
QString escaped(const QString &text)
{
    QString value = text;
    value.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s);
    if (value.startsWith(u' '))
        value.replace(0, 1, u"\\s"_s);
    return value;
}

QString unescaped(const QString &value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const QChar code = value[++i];
        const qsizetype known = QStringView(u"sntr\\").indexOf(code);
        text += known < 0 ? code : QStringView(u" \n\t\r\\")[known];
    }
    return text;
}

// One argument of Exec. This quoting comes before that of the string.
QString quotedArgument(const QString &argument)
{
    QString quoted = argument;
    for (const QChar special : u"\\\"`$"_s)
        quoted.replace(special, u"\\"_s + special);
    quoted.replace(u'%', u"%%"_s);
    return u'"' + quoted + u'"';
}

QMap<QString, QString> mainGroup(const QByteArray &content)
{
    QMap<QString, QString> values;
    bool isInside = false;
    for (const QString &line : QString::fromUtf8(content).split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(u'['))
            isInside = trimmed == u"[Desktop Entry]"_s;
        else if (const qsizetype equals = trimmed.indexOf(u'='); isInside && equals > 0 && !trimmed.startsWith(u'#'))
            values.insert(trimmed.first(equals).trimmed(), unescaped(trimmed.sliced(equals + 1).trimmed()));
    }
    return values;
}

} // namespace

QByteArray autostartEntry(const QString &program)
{
    const QStringList lines{u"[Desktop Entry]"_s,
                            u"Type=Application"_s,
                            u"Version=1.4"_s,
                            u"Name=Brimshade"_s,
                            u"Comment=Menu bar items behind the notch"_s,
                            u"Icon=org.brimshade.Brimshade"_s,
                            u"TryExec="_s + escaped(program),
                            u"Exec="_s + escaped(quotedArgument(program)) + u" --session"_s,
                            u"Terminal=false"_s,
                            u"X-GNOME-Autostart-enabled=true"_s,
                            QString()};
    return lines.join(u'\n').toUtf8();
}

QByteArray hiddenAutostartEntry()
{
    return "[Desktop Entry]\nType=Application\nVersion=1.4\nName=Brimshade\nExec=true\nHidden=true\n";
}

AutostartState readAutostartEntry(const QByteArray &content)
{
    const QMap<QString, QString> values = mainGroup(content);
    const bool isEnabled = values.value(u"Type"_s) == u"Application"_s && !values.value(u"Exec"_s).isEmpty()
        && values.value(u"Hidden"_s) != u"true"_s && values.value(u"X-GNOME-Autostart-enabled"_s) != u"false"_s;
    return {isEnabled, values.value(u"TryExec"_s)};
}

} // namespace brimshade::desktop
