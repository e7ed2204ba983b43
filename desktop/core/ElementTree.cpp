#include "ElementTree.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

using Key = std::tuple<QString, QString, QString, QString>;

Key keyOf(const QString &role, const std::optional<QString> &identifier, const std::optional<QString> &title,
          const std::optional<QString> &description)
{
    if (identifier && !identifier->isEmpty())
        return {*identifier, {}, {}, {}};
    return {{}, role, title.value_or(QString()), description.value_or(QString())};
}

void fill(Element &element, const ExtraDescription &extra)
{
    element.role = extra.role;
    element.title = extra.title;
    element.description = extra.description;
    element.identifier = extra.identifier;
    element.actions = extra.actions;
    element.pressError.reset();
    if (extra.pressError)
        element.pressError = static_cast<platform::AXError>(*extra.pressError);
    if (extra.frameKind == ExtraDescription::Frame::fixed)
        element.frame = extra.frame;
    else if (extra.frameKind == ExtraDescription::Frame::unreadable)
        element.frame.reset();
}

// The parent's current children; each can be taken once.
class Remaining {
public:
    explicit Remaining(const std::vector<platform::AXUIElement> &children)
    {
        for (const auto &child : children) {
            const auto element = std::static_pointer_cast<Element>(child);
            m_byKey[keyOf(element->role, element->identifier, element->title, element->description)].push_back(element);
        }
    }
    ElementPointer take(const Key &key)
    {
        const auto found = m_byKey.find(key);
        if (found == m_byKey.end() || found->second.empty())
            return nullptr;
        auto element = found->second.front();
        found->second.pop_front();
        return element;
    }
    void kill()
    {
        for (auto &[key, elements] : m_byKey) {
            for (const auto &element : elements) {
                element->isAlive = false;
                killChildren(*element);
            }
        }
    }

private:
    std::map<Key, std::deque<ElementPointer>> m_byKey;
};

} // namespace

std::vector<DescribedExtra> describeChildren(Element &parent, const std::vector<ExtraDescription> &extras)
{
    Remaining before(std::exchange(parent.children, {}));
    std::vector<DescribedExtra> all;
    for (const ExtraDescription &extra : extras) {
        auto element = before.take(keyOf(extra.role, extra.identifier, extra.title, extra.description));
        if (!element) {
            element = std::make_shared<Element>(Element::Kind::item, parent.pid);
            element->process = parent.process;
        }
        fill(*element, extra);
        parent.children.push_back(element);
        auto below = describeChildren(*element, extra.children);
        if (extra.role == "AXGroup"_L1) // only a group's children stand in the bar
            std::ranges::move(below, std::back_inserter(all));
        else
            all.push_back({extra, element});
    }
    before.kill();
    return all;
}

void killChildren(Element &parent)
{
    for (const auto &child : std::exchange(parent.children, {})) {
        auto &element = static_cast<Element &>(*child);
        element.isAlive = false;
        killChildren(element);
    }
}

} // namespace brimshade::desktop
