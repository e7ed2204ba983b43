#include "BarReading.h"
#include "ElementReader.h"
#include "platform/Geometry.h"

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kChildren = u"AXChildren"_s;
const QString kRole = u"AXRole"_s;
const QString kTitle = u"AXTitle"_s;
const QString kDescription = u"AXDescription"_s;
const QString kIdentifier = u"AXIdentifier"_s;
const QString kItemRole = u"AXMenuBarItem"_s;
const QString kGroupRole = u"AXGroup"_s;
const QString kButtonRole = u"AXButton"_s;

// Seconds, for the application element.
constexpr double kScanTimeout = 0.25;
constexpr double kButtonTimeout = 0.2;

// Far deeper than any real menu bar: stops the walk of a tree that leads back into itself.
constexpr int kDeepestGroup = 1000;

struct Walk {
    ElementReader &reader;
    std::vector<AXUIElement> items;
    std::optional<double> buttonEdge;

    void visitChildren(const AXUIElement &element, int depth)
    {
        for (AXUIElement &child : reader.elements(element, kChildren))
            visit(std::move(child), depth);
    }

    void visit(AXUIElement child, int depth)
    {
        const QString role = reader.string(child, kRole);
        if (role == kItemRole)
            items.push_back(std::move(child));
        else if (role == kGroupRole && depth < kDeepestGroup)
            visitChildren(child, depth + 1);
        else if (role == kButtonRole)
            buttonEdge = platform::maxX(reader.frame(child));
    }
};

ItemReading readItem(ElementReader &reader, AXUIElement item)
{
    ItemReading reading;
    reading.title = reader.string(item, kTitle);
    reading.description = reader.string(item, kDescription);
    reading.identifier = reader.string(item, kIdentifier);
    reading.frame = reader.frame(item);
    reading.element = std::move(item);
    return reading;
}

} // namespace

BarReading readBar(Accessibility &accessibility, int processIdentifier)
{
    ElementReader reader(accessibility);
    const AXUIElement menuBar = reader.extrasMenuBar(processIdentifier, kScanTimeout);
    if (!menuBar)
        return {};
    Walk walk{reader, {}, {}};
    walk.visitChildren(menuBar, 0);
    BarReading bar{{}, walk.buttonEdge};
    bar.items.reserve(walk.items.size());
    for (AXUIElement &item : walk.items)
        bar.items.push_back(readItem(reader, std::move(item)));
    return bar;
}

std::optional<QRectF> readFirstButton(Accessibility &accessibility, int processIdentifier)
{
    ElementReader reader(accessibility);
    const AXUIElement menuBar = reader.extrasMenuBar(processIdentifier, kButtonTimeout);
    if (!menuBar)
        return std::nullopt;
    for (const AXUIElement &child : reader.elements(menuBar, kChildren))
        if (reader.string(child, kRole) == kButtonRole)
            return reader.frame(child);
    return std::nullopt;
}

} // namespace brimshade::menubar
