#include "OnboardingFlow.h"

#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "platform/Accessibility.h"
#include "platform/Dispatch.h"

#include <algorithm>
#include <utility>

namespace brimshade::windows {

using menubar::ExtraList;
using menubar::MenuExtra;
using model::NotchModel;

namespace {

constexpr double kPollInterval = 1.0; // seconds
constexpr qsizetype kHeroIcons = 5;

} // namespace

OnboardingFlow::OnboardingFlow(NotchModel &model, model::PermissionRequest &permission,
                               platform::Accessibility &accessibility, platform::Dispatch &dispatch,
                               FinishAction onFinish, QObject *parent)
    : QObject(parent), m_model(model), m_permission(permission), m_accessibility(accessibility), m_dispatch(dispatch),
      m_onFinish(std::move(onFinish)), m_asksForPermission(accessibility.needsPermission()),
      m_tiles([this](const MenuExtra &extra) { return effectiveChoice(extra); })
{
    connect(&model, &NotchModel::extrasChanged, this, &OnboardingFlow::extrasChanged);
    connect(&model, &NotchModel::trustedChanged, this, &OnboardingFlow::actionChanged);
    extrasChanged();
}

OnboardingFlow::~OnboardingFlow() = default;

OnboardingFlow::Action OnboardingFlow::action() const
{
    switch (m_step) {
    case Welcome:
        return GetStarted;
    case Permission:
        return m_model.trusted() ? Continue : Skip;
    case Final:
        return Finish;
    default:
        return Continue;
    }
}

void OnboardingFlow::setActive(bool active)
{
    if (active == isActive())
        return;
    m_timer = active ? m_dispatch.scheduleRepeating(kPollInterval, [this] { poll(); }) : nullptr;
    Q_EMIT activeChanged();
}

bool OnboardingFlow::effectiveChoice(const MenuExtra &extra) const
{
    return m_choices.value(extra.id, extra.isHidden);
}

int OnboardingFlow::stayCount() const
{
    return static_cast<int>(m_model.extras().size()) - tuckedCount();
}

int OnboardingFlow::tuckedCount() const
{
    return static_cast<int>(
        std::ranges::count_if(m_model.extras(), [this](const MenuExtra &extra) { return effectiveChoice(extra); }));
}

int OnboardingFlow::pendingCount() const
{
    return static_cast<int>(std::ranges::count_if(
        m_model.extras(), [this](const MenuExtra &extra) { return effectiveChoice(extra) != extra.isHidden; }));
}

void OnboardingFlow::act()
{
    if (m_step == Final)
        m_onFinish(m_choices);
    else
        moveBy(1);
}

void OnboardingFlow::back()
{
    if (m_step > Welcome)
        moveBy(-1);
}

void OnboardingFlow::moveBy(int direction)
{
    const int next = m_step + direction;
    setStep(next == Permission && !m_asksForPermission ? next + direction : next);
}

void OnboardingFlow::toggle(const QString &extraID)
{
    const MenuExtra *extra = m_model.extraWithID(extraID);
    if (!extra || !extra->canMove)
        return;
    m_choices.insert(extra->id, !effectiveChoice(*extra));
    m_tiles.choicesChanged();
    Q_EMIT choicesChanged();
}

void OnboardingFlow::openAccessibilitySettings()
{
    m_permission.openAccessibilitySettings();
}

void OnboardingFlow::poll()
{
    if (m_step != Permission || m_model.trusted() || !m_accessibility.isProcessTrusted())
        return;
    m_model.setTrusted(true);
    m_model.onRefresh();
}

void OnboardingFlow::setStep(int step)
{
    m_step = step;
    Q_EMIT stepChanged();
    Q_EMIT actionChanged();
}

void OnboardingFlow::extrasChanged()
{
    seedChoices();
    m_tiles.setExtras(m_model.extras());
    updateHeroIcons();
    Q_EMIT choicesChanged();
}

// A choice outlives every rescan, and even the item.
void OnboardingFlow::seedChoices()
{
    for (const MenuExtra &extra : m_model.extras())
        if (!m_choices.contains(extra.id))
            m_choices.insert(extra.id, extra.isHidden);
}

void OnboardingFlow::updateHeroIcons()
{
    QVariantList icons;
    for (const MenuExtra &extra : m_model.extras())
        if (!extra.icon.isNull() && icons.size() < kHeroIcons)
            icons.append(QVariant::fromValue(extra.icon));
    while (icons.size() < kHeroIcons)
        icons.append(QVariant::fromValue(platform::Image()));
    const bool same = std::ranges::equal(icons, m_heroIcons, [](const QVariant &a, const QVariant &b) {
        return a.value<platform::Image>().isSameObject(b.value<platform::Image>());
    });
    if (same)
        return;
    m_heroIcons = icons;
    Q_EMIT heroIconsChanged();
}

} // namespace brimshade::windows
