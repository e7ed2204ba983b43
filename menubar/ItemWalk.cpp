#include "ItemWalk.h"
#include "platform/Geometry.h"

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kChildren = u"AXChildren"_s;
const QString kRole = u"AXRole"_s;
const QString kItemRole = u"AXMenuBarItem"_s;
const QString kGroupRole = u"AXGroup"_s;
const QString kButtonRole = u"AXButton"_s;

// Far beyond any real menu bar: ends the walk of a tree that leads back into itself.
constexpr int kDeepestGroup = 1000;

struct Walk {
    Accessibility &accessibility;
    std::optional<double> &buttonEdge;
    std::vector<AXUIElement> items;

    void visitChildren(const AXUIElement &element, int depth)
    {
        for (AXUIElement &child : elementsAttribute(accessibility, element, kChildren))
            if (child)
                visit(std::move(child), depth);
    }

    void visit(AXUIElement child, int depth)
    {
        const QString role = stringAttribute(accessibility, child, kRole);
        if (role == kItemRole)
            items.push_back(std::move(child));
        else if (role == kGroupRole && depth < kDeepestGroup)
            visitChildren(child, depth + 1);
        else if (role == kButtonRole)
            buttonEdge = platform::maxX(frameOf(accessibility, child));
    }
};

} // namespace

std::vector<AXUIElement> collectItems(Accessibility &accessibility, const AXUIElement &menuBar,
                                      std::optional<double> &buttonEdge)
{
    Walk walk{accessibility, buttonEdge, {}};
    walk.visitChildren(menuBar, 0);
    return std::move(walk.items);
}

std::optional<QRectF> firstButtonFrame(Accessibility &accessibility, const AXUIElement &menuBar)
{
    for (const AXUIElement &child : elementsAttribute(accessibility, menuBar, kChildren))
        if (child && stringAttribute(accessibility, child, kRole) == kButtonRole)
            return frameOf(accessibility, child);
    return std::nullopt;
}

} // namespace brimshade::menubar
