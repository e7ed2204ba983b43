#include "WorkspaceService.h"
#include "AppIcons.h"

#include <QUrl>

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr auto kBundleIdentifier = "org.brimshade.Brimshade"_L1;
constexpr auto kAccessibilityPage = "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"_L1;

bool isInside(const QString &path, const QString &bundle)
{
    return path.size() > bundle.size() && path.startsWith(bundle) && path.at(bundle.size()) == u'/';
}

} // namespace

WorkspaceService::WorkspaceService(SharedState &state, int ownPid)
    : m_state(state), m_ownPid(ownPid), m_genericIcon(genericIcon())
{
}

void WorkspaceService::publishOwn()
{
    const RunningApplication own{m_ownPid, kBundleIdentifier, std::nullopt, u"Brimshade"_s, m_genericIcon};
    m_state.write([&](DisplayState &state) {
        state.applications.push_back(own);
        state.processes[m_ownPid].responsiveness = std::make_shared<Responsiveness>();
    });
}

std::vector<RunningApplication> WorkspaceService::runningApplications() const
{
    return m_state.read([](const DisplayState &state) { return state.applications; });
}

std::optional<QString> WorkspaceService::bundleIdentifier() const
{
    return kBundleIdentifier;
}

QString WorkspaceService::displayNameAtPath(const QString &path) const
{
    return m_state.read([&](const DisplayState &state) {
        const auto named = state.displayNames.find(path);
        return named == state.displayNames.end() ? path.section(u'/', -1, -1, QString::SectionSkipEmpty)
                                                 : named->second;
    });
}

// The icon of that very bundle, else of the innermost one around the file, else of one inside it: a helper stands for
// the application that it came with.
Image WorkspaceService::iconForFile(const QString &path) const
{
    return m_state.read([&](const DisplayState &state) {
        const auto &icons = state.bundleIcons;
        if (const auto exact = icons.find(path); exact != icons.end())
            return exact->second;
        const Image *enclosing = nullptr;
        const Image *enclosed = nullptr;
        for (const auto &[bundle, icon] : icons) { // sorted: a path comes after its own prefixes
            if (isInside(path, bundle))
                enclosing = &icon;
            else if (!enclosed && isInside(bundle, path))
                enclosed = &icon;
        }
        return enclosing ? *enclosing : enclosed ? *enclosed : m_genericIcon;
    });
}

bool WorkspaceService::openURL(const QString &url)
{
    if (!QUrl(url).isValid() || QUrl(url).scheme().isEmpty())
        return false;
    m_state.write([&](DisplayState &state) { record(state.openedURLs, url); });
    if (url == kAccessibilityPage)
        Q_EMIT accessibilityPageOpened();
    Q_EMIT otherApplicationOpened();
    return true;
}

} // namespace brimshade::desktop
