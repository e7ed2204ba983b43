#include "AutostartEntry.h"
#include "KeyFile.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

// Quotes one argument of Exec. The escaping of the whole string comes on top of this.
QString quotedArgument(const QString &argument)
{
    QString quoted = argument;
    for (const QChar special : u"\\\"`$"_s)
        quoted.replace(special, u"\\"_s + special);
    quoted.replace(u'%', u"%%"_s);
    return u'"' + quoted + u'"';
}

} // namespace

QByteArray autostartEntry(const QString &program, bool hasUnit)
{
    // It must not wait: the unit starts only after the session, which this entry is a part of.
    const QString throughUnit = u"sh -c "_s
        + quotedArgument(uR"(systemctl --user --no-block start brimshade.service || exec "$0" --session)"_s);
    const QString quoted = quotedArgument(program);
    const QString exec = hasUnit ? throughUnit + u' ' + quoted : quoted + u" --session"_s;
    const QStringList lines{u"[Desktop Entry]"_s,
                            u"Type=Application"_s,
                            u"Version=1.4"_s,
                            u"Name=Brimshade"_s,
                            u"Comment=Menu bar items behind the notch"_s,
                            u"Icon=org.brimshade.Brimshade"_s,
                            u"TryExec="_s + escaped(program),
                            u"Exec="_s + escaped(exec),
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
    const KeyGroup values = readDesktopEntry(content);
    const bool isEnabled = values.value(u"Type"_s) == u"Application"_s && !values.value(u"Exec"_s).isEmpty()
        && values.value(u"Hidden"_s) != u"true"_s && values.value(u"X-GNOME-Autostart-enabled"_s) != u"false"_s;
    return {isEnabled, values.value(u"TryExec"_s)};
}

} // namespace brimshade::desktop
