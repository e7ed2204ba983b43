#include "KeyFile.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

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

} // namespace

QMap<QString, KeyGroup> readKeyFile(const QByteArray &content)
{
    QMap<QString, KeyGroup> groups;
    KeyGroup *group = nullptr;
    for (const QByteArray &bytes : content.split('\n')) {
        const QString line = QString::fromUtf8(bytes).trimmed();
        if (line.startsWith(u'['))
            group = line.endsWith(u']') ? &groups[line.sliced(1).chopped(1)] : nullptr;
        else if (const qsizetype equals = line.indexOf(u'='); group && equals > 0 && !line.startsWith(u'#'))
            group->insert(line.first(equals).trimmed(), unescaped(line.sliced(equals + 1).trimmed()));
    }
    return groups;
}

KeyGroup readDesktopEntry(const QByteArray &content)
{
    return readKeyFile(content).value(u"Desktop Entry"_s);
}

QString escaped(const QString &text)
{
    QString value = text;
    value.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s);
    if (value.startsWith(u' '))
        value.replace(0, 1, u"\\s"_s);
    return value;
}

} // namespace brimshade::desktop
