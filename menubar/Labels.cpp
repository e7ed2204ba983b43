#include "Labels.h"

#include <algorithm>
#include <array>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

struct SymbolRow {
    QLatin1StringView keyword;
    QLatin1StringView symbol;
};

// The first row whose keyword occurs wins: the order is part of the table.
constexpr std::array kSymbols = std::to_array<SymbolRow>({
    {"focus"_L1, "moon.fill"_L1},
    {"battery"_L1, "battery.75percent"_L1},
    {"controlcenter"_L1, "switch.2"_L1},
    {"clock"_L1, "clock.fill"_L1},
    {"wifi"_L1, "wifi"_L1},
    {"bluetooth"_L1, "wave.3.right"_L1},
    {"sound"_L1, "speaker.wave.2.fill"_L1},
    {"volume"_L1, "speaker.wave.2.fill"_L1},
    {"airdrop"_L1, "airplayaudio"_L1},
    {"screenmirroring"_L1, "rectangle.on.rectangle"_L1},
    {"display"_L1, "sun.max.fill"_L1},
    {"spotlight"_L1, "magnifyingglass"_L1},
    {"siri"_L1, "waveform"_L1},
    {"user"_L1, "person.crop.circle.fill"_L1},
    {"textinput"_L1, "keyboard.fill"_L1},
    {"nowplaying"_L1, "play.fill"_L1},
    {"vpn"_L1, "lock.shield.fill"_L1},
    {"timemachine"_L1, "clock.arrow.circlepath"_L1},
    {"weather"_L1, "cloud.sun.fill"_L1},
    {"accessibility"_L1, "accessibility"_L1},
    {"keyboard"_L1, "keyboard.fill"_L1},
});

} // namespace

std::optional<QString> outerBundle(const QString &path)
{
    const qsizetype marker = path.indexOf(u".app/"_s);
    return marker < 0 ? std::nullopt : std::optional(path.first(marker + 4));
}

QString withoutBundleSuffix(QString displayName)
{
    return displayName.remove(".app"_L1);
}

QString symbolName(const QString &identifier)
{
    const QString lowercased = identifier.toLower();
    const auto row =
        std::ranges::find_if(kSymbols, [&](const SymbolRow &row) { return lowercased.contains(row.keyword); });
    return row == kSymbols.end() ? u"circle.grid.2x2.fill"_s : QString(row->symbol);
}

} // namespace brimshade::menubar
