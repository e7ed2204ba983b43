#include "LogFormat.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

QString shown(QStringView options, QChar conversion, const platform::LogArgument &argument)
{
    if (conversion == u's') {
        const QString *text = std::get_if<QString>(&argument);
        if (!text)
            return u"<decode: mismatch>"_s;
        return options.contains("public"_L1) ? *text : u"<private>"_s;
    }
    if (options.contains("private"_L1))
        return u"<private>"_s;
    if (const bool *value = std::get_if<bool>(&argument))
        return options.contains("bool"_L1) ? (*value ? u"true"_s : u"false"_s) : QString::number(*value);
    if (const int *value = std::get_if<int>(&argument))
        return QString::number(*value);
    if (const unsigned long *value = std::get_if<unsigned long>(&argument))
        return QString::number(*value);
    return u"<decode: mismatch>"_s;
}

} // namespace

QString formatLog(QStringView format, std::span<const platform::LogArgument> arguments)
{
    // %, options in braces, a length, a conversion; or %%
    static const QRegularExpression directive(u"%(?:%|(?:\\{([^}]*)\\})?(?:hh|h|ll|l|z)?([dius]))"_s);
    QString line;
    qsizetype from = 0;
    std::size_t next = 0;
    for (const QRegularExpressionMatch &match : directive.globalMatch(format.toString())) {
        line += format.sliced(from, match.capturedStart() - from);
        from = match.capturedEnd();
        if (match.capturedLength() == 2 && match.capturedView().endsWith(u'%'))
            line += u'%';
        else if (next < arguments.size())
            line += shown(match.capturedView(1), match.capturedView(2).front(), arguments[next++]);
        else
            line += u"<decode: missing data>"_s;
    }
    line += format.sliced(from);
    return line;
}

} // namespace brimshade::desktop
