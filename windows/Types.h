#pragma once
#include "windows/flow/ItemRows.h"
#include "windows/flow/MenuBarChoices.h"
#include "windows/flow/OnboardingFlow.h"
#include "windows/flow/SettingsActions.h"
#include "windows/flow/ShortcutChoice.h"

#include <qqml.h>

// The names under which this module's QML knows what windows/flow decides.
namespace brimshade::windows {

struct ItemRowsType {
    Q_GADGET
    QML_FOREIGN(brimshade::windows::ItemRows)
    QML_NAMED_ELEMENT(ItemRows)
};

struct MenuBarChoicesType {
    Q_GADGET
    QML_FOREIGN(brimshade::windows::MenuBarChoices)
    QML_NAMED_ELEMENT(MenuBarChoices)
    QML_UNCREATABLE("Made by the coordinator where there is something to choose.")
};

struct SettingsActionsType {
    Q_GADGET
    QML_FOREIGN(brimshade::windows::SettingsActions)
    QML_NAMED_ELEMENT(SettingsActions)
};

struct ShortcutChoiceType {
    Q_GADGET
    QML_FOREIGN(brimshade::windows::ShortcutChoice)
    QML_NAMED_ELEMENT(ShortcutChoice)
};

struct ChoiceTilesType {
    Q_GADGET
    QML_FOREIGN(brimshade::windows::ChoiceTiles)
    QML_NAMED_ELEMENT(ChoiceTiles)
    QML_UNCREATABLE("Belongs to the flow.")
};

struct OnboardingFlowType {
    Q_GADGET
    QML_FOREIGN(brimshade::windows::OnboardingFlow)
    QML_NAMED_ELEMENT(OnboardingFlow)
    QML_UNCREATABLE("Made by the coordinator.")
};

} // namespace brimshade::windows
