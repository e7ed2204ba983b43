// What `brimshade` starts: a word for the Brimshade that runs in this session goes there at once; for all else this
// process becomes the program itself. A key binding thus waits for few libraries.
#include "desktop/session/remote/Remote.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <unistd.h>

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

// BRIMSHADE_MAIN is relative to the folder of this one.
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
    if (const char *action = argc == 2 ? actionOf(argv[1]) : nullptr) {
        const auto answer = remote::activateAction(action);
        return answer ? 0 : complain(answer.error());
    }
    const std::string program = programPath();
    execv(program.c_str(), argv);
    return complain(program + ": " + std::strerror(errno));
}
