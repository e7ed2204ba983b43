#include "ItemName.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace brimshade::app {

namespace {

using Extra = menubar::MenuExtra;
using Means = bool (*)(const Extra &, const QString &name);

// The clearest first.
constexpr Means kMeans[] = {
    [](const Extra &extra, const QString &name) { return extra.detail.compare(name, Qt::CaseInsensitive) == 0; },
    [](const Extra &extra, const QString &name) { return extra.name.compare(name, Qt::CaseInsensitive) == 0; },
    [](const Extra &extra, const QString &name) {
        return !name.isEmpty()
            && (extra.detail.contains(name, Qt::CaseInsensitive) || extra.name.contains(name, Qt::CaseInsensitive));
    },
};

QString namesOf(const std::vector<const Extra *> &extras)
{
    QStringList names;
    for (const Extra *extra : extras)
        names.append(extra->detail == extra->name ? extra->name : u"%1 (%2)"_s.arg(extra->detail, extra->name));
    return names.join(u", "_s);
}

} // namespace

std::expected<const Extra *, QString> itemNamed(const QString &name, const menubar::ExtraList &extras)
{
    for (const Means means : kMeans) {
        std::vector<const Extra *> meant;
        for (const Extra &extra : extras) {
            if (means(extra, name))
                meant.push_back(&extra);
        }
        if (meant.size() == 1)
            return meant.front();
        if (!meant.empty())
            return std::unexpected(u"several items are named \"%1\": %2"_s.arg(name, namesOf(meant)));
    }
    return std::unexpected(u"no item is named \"%1\""_s.arg(name));
}

QString nameToAskWith(const menubar::MenuExtra &item, const menubar::ExtraList &extras)
{
    const auto found = itemNamed(item.name, extras);
    return found && (*found)->id == item.id ? item.name : item.detail;
}

} // namespace brimshade::app
