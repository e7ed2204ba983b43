#include "HostedApplication.h"

#include "desktop/core/BarLayout.h"
#include "desktop/core/BarText.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

double widthOf(const TrayItem &item)
{
    const double width = kItemPadding + kItemPicture + kItemPadding;
    if (item.label.isEmpty())
        return width;
    return width + kLabelGap + std::ceil(std::max(barTextWidth(item.label), barTextWidth(item.labelGuide)));
}

QString toolTipOf(const TrayItem &item)
{
    QStringList lines;
    for (const auto &line : {item.toolTipTitle.isEmpty() ? item.title : item.toolTipTitle, item.toolTipText}) {
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines.join(u'\n');
}

ExtraDescription describeExtra(const TrayItem &item, const QString &identifier)
{
    ExtraDescription extra;
    extra.role = u"AXMenuBarItem"_s;
    extra.identifier = identifier;
    if (!item.title.isEmpty())
        extra.title = item.title;
    const auto description = item.toolTipTitle.isEmpty() ? item.label : item.toolTipTitle;
    if (!description.isEmpty())
        extra.description = description;
    extra.width = widthOf(item);
    extra.actions = {u"AXPress"_s};
    return extra;
}

platform::Image applicationIcon(const HostedProgram &program, const std::vector<HostedItem> &items)
{
    auto icon = program.icon;
    for (auto it = items.begin(); icon.isNull() && it != items.end(); ++it)
        icon = it->pictures.whole;
    return icon;
}

ItemSpec specOf(const HostedItem &hosted, const QString &program)
{
    return {.image = hosted.pictures.whole,
            .handler = hosted.handler,
            .scroller = hosted.scroller,
            .label = hosted.item.label,
            .offer = {hosted.canBeActivated, hosted.item.status == TrayItem::Status::needsAttention,
                      toolTipOf(hosted.item), hosted.pictures.overlay},
            .isAway = hosted.item.status == TrayItem::Status::passive,
            .origin = ItemOrigin{hosted.instance, program, hosted.item.id}};
}

} // namespace

QString applicationName(const HostedProgram &program, const std::vector<HostedItem> &items)
{
    if (program.found.entry && !program.found.entry->name.isEmpty())
        return program.found.entry->name;
    for (const auto &hosted : items) {
        if (!hosted.item.nameForPeople().isEmpty())
            return hosted.item.nameForPeople();
    }
    return u"App"_s;
}

ApplicationSpec describeApplication(int pid, const HostedProgram &program, const std::vector<HostedItem> &items)
{
    ApplicationSpec given;
    given.description.pid = pid;
    given.description.name = applicationName(program, items);
    if (program.found.entry)
        given.description.bundleIdentifier = program.found.entry->id;
    given.icon = applicationIcon(program, items);
    given.isLive = true;
    auto &extras = given.description.extras.emplace();
    for (const auto &hosted : items) {
        auto identifier = hosted.item.id;
        if (identifier.isEmpty() || given.items.contains(identifier))
            identifier = hosted.path;
        if (given.items.contains(identifier)) // same path, on another connection of the program
            identifier = hosted.instance;
        extras.push_back(describeExtra(hosted.item, identifier));
        given.items.emplace(identifier, specOf(hosted, program.found.name));
    }
    return given;
}

} // namespace brimshade::desktop::tray
