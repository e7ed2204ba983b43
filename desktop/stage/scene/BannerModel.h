#pragma once
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"
#include "platform/Image.h"

#include <QAbstractListModel>
#include <qqml.h>
#include <vector>

namespace brimshade::desktop {

class Desktop;

// What applications have to say, for three seconds each; the latest first. Main thread.
class BannerModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a scene")

public:
    enum Role { ApplicationRole = Qt::UserRole + 1, WhatRole, IconRole, LeavingRole };

    explicit BannerModel(Desktop &desktop);

    void show(const QString &application, const QString &what);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Banner {
        int number = 0;
        QString application, what;
        platform::Image icon;
        bool isLeaving = false;
    };
    void after(double seconds, void (BannerModel::*step)(int), int number);
    void leave(int number);
    void remove(int number);
    int rowOf(int number) const; // -1 when it is gone

    Desktop &m_desktop;
    std::vector<Banner> m_banners;
    int m_lastNumber = 0;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop
