#pragma once
#include "KeyCombination.h"

#include <QObject>
#include <QString>
#include <array>
#include <optional>

namespace brimshade::model {
Q_NAMESPACE

// The global shortcuts to choose from. Stored by raw value, listed in this order.
enum class Shortcut : std::uint8_t { none, optionCommandN, controlOptionSpace, controlOptionCommandM };
Q_ENUM_NS(Shortcut)

inline constexpr std::array allShortcuts{Shortcut::none, Shortcut::optionCommandN, Shortcut::controlOptionSpace,
                                         Shortcut::controlOptionCommandM};

QString rawValue(Shortcut shortcut);
QString displayTitle(Shortcut shortcut); // "⌃⌥Space"
std::optional<KeyCombination> keyCombination(Shortcut shortcut); // absent for none
std::optional<Shortcut> shortcutFromRawValue(const QString &rawValue); // exact, case-sensitive

} // namespace brimshade::model
