#include "BannerModel.h"
#include "desktop/core/Desktop.h"
#include "platform/Workspace.h"

#include <algorithm>

namespace brimshade::desktop {

namespace {

constexpr std::size_t kMost = 3;
constexpr double kStay = 2.7; // seconds until it starts to leave
constexpr double kLeave = 0.3; // and until it is gone

platform::Image iconOf(Desktop &desktop, const QString &application)
{
    for (const platform::RunningApplication &each : desktop.platform().workspace.runningApplications()) {
        if (each.localizedName == application)
            return each.icon;
    }
    return {};
}

} // namespace

BannerModel::BannerModel(Desktop &desktop) : m_desktop(desktop)
{
    connect(&desktop, &Desktop::notified, this, &BannerModel::show);
}

void BannerModel::show(const QString &application, const QString &what)
{
    std::vector<Banner> banners{{++m_lastNumber, application, what, iconOf(m_desktop, application)}};
    for (const Banner &each : m_banners) {
        if (banners.size() < kMost)
            banners.push_back(each);
    }
    set(banners);
    after(kStay, &BannerModel::leave, m_lastNumber);
}

void BannerModel::after(double seconds, void (BannerModel::*step)(int), int number)
{
    m_desktop.platform().dispatch.mainAfter(seconds, m_lifetime.guard([this, step, number] { (this->*step)(number); }));
}

void BannerModel::leave(int number)
{
    std::vector<Banner> banners = m_banners;
    const auto found = std::ranges::find(banners, number, &Banner::number);
    if (found == banners.end())
        return;
    found->isLeaving = true;
    set(banners);
    after(kLeave, &BannerModel::remove, number);
}

void BannerModel::remove(int number)
{
    std::vector<Banner> banners = m_banners;
    std::erase_if(banners, [&](const Banner &each) { return each.number == number; });
    set(banners);
}

void BannerModel::set(const std::vector<Banner> &banners)
{
    setRows(
        m_banners, banners, [](const Banner &each) { return QString::number(each.number); },
        [](Banner &shown, const Banner &wanted) {
            const bool starts = shown.isLeaving != wanted.isLeaving;
            shown = wanted;
            return starts ? QList<int>{LeavingRole} : QList<int>();
        });
}

QVariant BannerModel::value(int row, int role) const
{
    const Banner &banner = m_banners[std::size_t(row)];
    switch (role) {
    case ApplicationRole:
        return banner.application;
    case WhatRole:
        return banner.what;
    case IconRole:
        return QVariant::fromValue(banner.icon);
    case LeavingRole:
        return banner.isLeaving;
    default:
        return {};
    }
}

QHash<int, QByteArray> BannerModel::roleNames() const
{
    return {{ApplicationRole, "application"}, {WhatRole, "what"}, {IconRole, "image"}, {LeavingRole, "isLeaving"}};
}

} // namespace brimshade::desktop
