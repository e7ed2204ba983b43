#include "KeptOrderFormat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr int kVersion = 1;
constexpr int kMostOrdinal = 1000; // of one program's items at once; no bar has that many

constexpr auto kVersionKey = "version"_L1, kRight = "rightOfBrimshade"_L1, kLeft = "leftOfBrimshade"_L1;
constexpr auto kProgram = "program"_L1, kId = "id"_L1, kOrdinal = "ordinal"_L1, kSeen = "seen"_L1;

QJsonObject written(const KeptItem &item, QDate seen)
{
    QJsonObject object{{kProgram, item.program}, {kId, item.id}, {kSeen, seen.toString(Qt::ISODate)}};
    if (item.ordinal != 0)
        object.insert(kOrdinal, item.ordinal);
    return object;
}

std::optional<QString> readText(const QJsonValue &value)
{
    const QString text = value.toString();
    return value.isString() && text.size() <= KeptOrder::kLongestText ? std::optional(text) : std::nullopt;
}

bool append(KeptOrder &order, const QJsonValue &value)
{
    const auto program = readText(value[kProgram]);
    const auto id = readText(value[kId]);
    const int ordinal = value[kOrdinal].isUndefined() ? 0 : value[kOrdinal].toInt(-1);
    const QDate seen = QDate::fromString(value[kSeen].toString(), Qt::ISODate);
    if (!program || !id || ordinal < 0 || ordinal > kMostOrdinal || !seen.isValid())
        return false;
    order.append(KeptItem{*program, *id, ordinal}, seen);
    return true;
}

bool appendAll(KeptOrder &order, const QJsonValue &list)
{
    const QJsonArray items = list.toArray();
    return list.isArray() && static_cast<std::size_t>(items.size()) <= KeptOrder::kMost
        && std::ranges::all_of(items, [&order](const QJsonValue &item) { return append(order, item); });
}

} // namespace

QByteArray writeKeptOrder(const KeptOrder &order)
{
    QJsonArray right, left;
    QJsonArray *side = &right;
    for (const KeptOrder::Record &record : order.records()) {
        if (record.slot)
            side->append(written(*record.slot, order.lastSeen(record)));
        else
            side = &left;
    }
    return QJsonDocument(QJsonObject{{kVersionKey, kVersion}, {kRight, right}, {kLeft, left}}).toJson();
}

std::expected<KeptOrder, Verdict> readKeptOrder(const QByteArray &json, const KeptOrder::Today &today)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const QJsonValue version = document[kVersionKey];
    if (!version.isDouble())
        return std::unexpected(Verdict::damaged);
    if (version.toDouble() != kVersion)
        return std::unexpected(Verdict::otherVersion);
    KeptOrder order(today);
    if (!appendAll(order, document[kRight]))
        return std::unexpected(Verdict::damaged);
    order.append({}, {});
    if (!appendAll(order, document[kLeft]))
        return std::unexpected(Verdict::damaged);
    return order;
}

} // namespace brimshade::desktop
