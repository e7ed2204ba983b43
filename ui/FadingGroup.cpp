#include "FadingGroup.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

namespace brimshade::ui {

namespace {
constexpr double kBeyondAll = 1e6; // a z
// The group's opacity while it is veiled. What lies under something fully opaque the renderer does not draw at all, but
// here it shows through.
constexpr double kNearlyOpaque = 0.998;
} // namespace

FadingGroup::FadingGroup(QQuickItem *parent) : QQuickItem(parent)
{
    connect(this, &FadingGroup::changed, this, &FadingGroup::fade);
}

FadingGroup::~FadingGroup() = default;

void FadingGroup::setShown(double shown)
{
    if (m_shown == shown)
        return;
    m_shown = shown;
    fade();
    Q_EMIT shownChanged();
}

bool FadingGroup::isVeiled() const
{
    return m_isAsOne && m_shown > 0 && m_shown < 1 && window()
        && window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

void FadingGroup::fade()
{
    if (!isVeiled()) {
        m_ground.reset();
        m_veil.reset();
        setOpacity(m_shown);
        return;
    }
    if (!m_veil) {
        const auto picture = std::make_shared<GroundPicture>();
        m_ground = std::make_unique<FadeGround>(picture, this);
        m_ground->setZ(-kBeyondAll);
        m_veil = std::make_unique<FadeVeil>(picture, this);
        m_veil->setZ(kBeyondAll);
    }
    setOpacity(kNearlyOpaque);
    m_veil->setOpacity(1 - m_shown);
    layOut();
}

void FadingGroup::layOut()
{
    for (QQuickItem *item : {static_cast<QQuickItem *>(m_ground.get()), static_cast<QQuickItem *>(m_veil.get())}) {
        item->setPosition({-m_reach, -m_reach});
        item->setSize(size().grownBy(QMarginsF(m_reach, m_reach, m_reach, m_reach)));
    }
}

void FadingGroup::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange)
        fade();
    QQuickItem::itemChange(change, data);
}

void FadingGroup::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_veil)
        layOut();
}

} // namespace brimshade::ui
