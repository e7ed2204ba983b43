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
    while (m_banners.size() >= kMost)
        remove(m_banners.back().number);
    beginInsertRows({}, 0, 0);
    m_banners.insert(m_banners.begin(), {++m_lastNumber, application, what, iconOf(m_desktop, application)});
    endInsertRows();
    after(kStay, &BannerModel::leave, m_lastNumber);
}

void BannerModel::after(double seconds, void (BannerModel::*step)(int), int number)
{
    m_desktop.platform().dispatch.mainAfter(seconds, m_lifetime.guard([this, step, number] { (this->*step)(number); }));
}

void BannerModel::leave(int number)
{
    const int row = rowOf(number);
    if (row < 0)
        return;
    m_banners[row].isLeaving = true;
    Q_EMIT dataChanged(index(row), index(row), {LeavingRole});
    after(kLeave, &BannerModel::remove, number);
}

void BannerModel::remove(int number)
{
    const int row = rowOf(number);
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    m_banners.erase(m_banners.begin() + row);
    endRemoveRows();
}

int BannerModel::rowOf(int number) const
{
    const auto found =
        std::find_if(m_banners.begin(), m_banners.end(), [&](const Banner &banner) { return banner.number == number; });
    return found == m_banners.end() ? -1 : int(found - m_banners.begin());
}

int BannerModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_banners.size());
}

QVariant BannerModel::data(const QModelIndex &index, int role) const
{
    const Banner &banner = m_banners[index.row()];
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
