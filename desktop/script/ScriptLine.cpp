#include "ScriptLine.h"
#include "desktop/json/JsonText.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

std::expected<QJsonObject, QString> parseScriptLine(const QByteArray &line)
{
    const auto command = parseJson(line);
    if (!command)
        return std::unexpected(
            u":%1: expected a JSON object: %2"_s.arg(command.error().column).arg(command.error().reason));
    if (!command->isObject())
        return std::unexpected(u": expected a JSON object"_s);
    return command->toObject();
}

} // namespace brimshade::desktop
