#include "ItemWalk.h"
#include "platform/Geometry.h"

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kChildren = u"AXChildren"_s;
const QString kRole = u"AXRole"_s;

// Far beyond any real menu bar: ends the walk of a tree that leads back into itself.
constexpr int kDeepestGroup = 1000;

struct Walk {
    Accessibility &accessibility;
    std::optional<double> &buttonEdge;
    std::vector<AXUIElement> items;

    void visitChildren(const AXUIElement &element, int depth)
    {
        for (const AXUIElement &child : elementsAttribute(accessibility, element, kChildren))
            if (child)
                visit(child, depth);
    }

    void visit(const AXUIElement &child, int depth)
    {
        const std::optional<QString> role = stringAttribute(accessibility, child, kRole);
        if (role == u"AXMenuBarItem"_s)
            items.push_back(child);
        else if (role == u"AXGroup"_s && depth < kDeepestGroup)
            visitChildren(child, depth + 1);
        else if (role == u"AXButton"_s)
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
        if (child && stringAttribute(accessibility, child, kRole) == u"AXButton"_s)
            return frameOf(accessibility, child);
    return std::nullopt;
}

} // namespace brimshade::menubar
