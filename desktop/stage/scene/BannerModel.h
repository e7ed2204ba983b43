#pragma once
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"
#include "platform/Image.h"
#include "ui/binding/ListModel.h"

#include <qqml.h>
#include <vector>

namespace brimshade::desktop {

class Desktop;

// Applications' messages, each shown for three seconds; the latest first. Main thread. The base class is spelled out in
// full because the QML type registrar looks it up by its spelling.
class BannerModel : public brimshade::ui::ListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a scene")

public:
    enum Role { ApplicationRole = Qt::UserRole + 1, WhatRole, IconRole, LeavingRole };

    explicit BannerModel(Desktop &desktop);

    void show(const QString &application, const QString &what);

    QHash<int, QByteArray> roleNames() const override;

protected:
    int count() const override { return int(m_banners.size()); }
    QVariant value(int row, int role) const override;

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
    void set(const std::vector<Banner> &banners);

    Desktop &m_desktop;
    std::vector<Banner> m_banners;
    int m_lastNumber = 0;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop
