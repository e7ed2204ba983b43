#pragma once
#include "KeptOrder.h"
#include "desktop/services/StoredFile.h"

#include <expected>

namespace brimshade::desktop {

// The kept order as one JSON object: "version" 1 and two lists, "rightOfBrimshade" and "leftOfBrimshade", each from
// right to left, of {"program", "id", "ordinal" where it is not 0, "seen": "2026-11-24"}. Pure functions, any thread.
QByteArray writeKeptOrder(const KeptOrder &order);

// Accepts any bytes. The error says what is wrong with them; no item of the order counts as present.
std::expected<KeptOrder, Verdict> readKeptOrder(const QByteArray &json, const KeptOrder::Today &today);

} // namespace brimshade::desktop
