#include "ApplicationChange.h"

#include <algorithm>
#include <span>
#include <tuple>

namespace brimshade::desktop {

namespace {

std::span<const ExtraDescription> extrasOf(const ApplicationSpec &application)
{
    const auto &extras = application.description.extras;
    return extras ? std::span(*extras) : std::span<const ExtraDescription>();
}

auto listed(const ExtraDescription &extra)
{
    return std::tie(extra.identifier, extra.title, extra.description, extra.width);
}

} // namespace

bool offerTheSame(const ApplicationSpec &one, const ApplicationSpec &other)
{
    return std::ranges::equal(one.items, other.items, [](const auto &a, const auto &b) {
        return a.first == b.first && a.second.offer == b.second.offer;
    });
}

bool listTheSame(const ApplicationSpec &one, const ApplicationSpec &other)
{
    return one.description.name == other.description.name && one.icon.isSameObject(other.icon)
        && std::ranges::equal(extrasOf(one), extrasOf(other),
                              [](const auto &a, const auto &b) { return listed(a) == listed(b); })
        && std::ranges::equal(one.items, other.items, [](const auto &a, const auto &b) {
               return a.first == b.first && a.second.isAway == b.second.isAway;
           });
}

} // namespace brimshade::desktop
