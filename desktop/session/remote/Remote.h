#pragma once
#include "ItemList.h"

#include <expected>
#include <string>

// Reaches the Brimshade that runs in this session, over the session's message bus.
namespace brimshade::desktop::session::remote {

inline constexpr char kService[] = "org.brimshade.Brimshade";
inline constexpr char kPath[] = "/org/brimshade/Brimshade";
inline constexpr char kInterface[] = "org.freedesktop.Application";

inline constexpr char kItemsInterface[] = "org.brimshade.Brimshade.Items";

inline constexpr char kToggle[] = "toggle"; // opens the panel or closes it
inline constexpr char kSettings[] = "settings";
inline constexpr char kQuit[] = "quit";

// All of these wait at most five seconds for the answer, and never start a Brimshade. The error is for standard error.
// Any thread.
std::expected<void, std::string> activate(); // opens the panel
std::expected<void, std::string> activateAction(const char *action);
std::expected<std::vector<Item>, std::string> listItems();
std::expected<void, std::string> openItem(const char *name); // shows its menu

} // namespace brimshade::desktop::session::remote
