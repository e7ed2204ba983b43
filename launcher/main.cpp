// What `brimshade` starts. A request to the Brimshade of this session is sent at once; for anything else this process
// becomes the program itself. So a key binding does not wait for many libraries to load.
#include "desktop/session/remote/Remote.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

using namespace brimshade::desktop::session;

namespace {

constexpr int kFailed = 1;

int complain(const std::string &message)
{
    std::fprintf(stderr, "brimshade: %s\n", message.c_str());
    return kFailed;
}

const char *actionOf(std::string_view option)
{
    for (const char *action : {remote::kToggle, remote::kSettings, remote::kQuit}) {
        if (option.starts_with("--") && option.substr(2) == action)
            return action;
    }
    return nullptr;
}

int finish(const std::expected<void, std::string> &answer)
{
    return answer ? 0 : complain(answer.error());
}

int list(std::string (*written)(const std::vector<remote::Item> &))
{
    const auto items = remote::listItems();
    if (!items)
        return complain(items.error());
    std::fputs(written(*items).c_str(), stdout);
    return 0;
}

// Absent if the arguments are anything else.
std::optional<int> sayToTheOneThatRuns(const std::vector<const char *> &arguments)
{
    const auto are = [&](std::initializer_list<std::string_view> words) {
        return std::ranges::equal(arguments, words);
    };
    if (const char *action = arguments.size() == 1 ? actionOf(arguments[0]) : nullptr)
        return finish(remote::activateAction(action));
    if (are({"--list"}))
        return list(remote::asTable);
    if (are({"--list", "--json"}))
        return list(remote::asJson);
    if (arguments.size() == 2 && arguments[0] == std::string_view("--open"))
        return finish(remote::openItem(arguments[1]));
    return {};
}

// BRIMSHADE_MAIN is relative to the folder of this executable.
std::string programPath()
{
    char self[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", self, sizeof self);
    const std::string_view path(self, length > 0 ? static_cast<std::size_t>(length) : 0);
    return std::string(path.substr(0, path.rfind('/') + 1)) + BRIMSHADE_MAIN;
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto status = sayToTheOneThatRuns({argv + std::min(argc, 1), argv + argc}))
        return *status;
    const std::string program = programPath();
    execv(program.c_str(), argv);
    return complain(program + ": " + std::strerror(errno));
}
