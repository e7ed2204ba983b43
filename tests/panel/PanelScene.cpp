#include "PanelScene.h"

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_NotchPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_PanelPlugin)

namespace brimshade::panel {

model::MenuExtra makeExtra(const QString &name, bool isHidden)
{
    model::MenuExtra extra;
    extra.id = name.toLower();
    extra.name = name;
    extra.detail = name + u" is what this is"_s;
    extra.tint = QColor::fromHsv(int(qHash(name) % 360), 180, 230);
    extra.icon = icon(extra.tint);
    extra.isHidden = isHidden;
    return extra;
}

model::ExtraList makeExtras(int hidden, int visible)
{
    const QStringList names{u"Relay"_s, u"Lantern"_s,  u"Papercut"_s, u"Moss"_s,
                            u"Skiff"_s, u"Tidepool"_s, u"Quill"_s,    u"Northwind Calendar"_s,
                            u"Ember"_s, u"Pebble"_s,   u"Halyard"_s,  u"Juniper"_s};
    const QStringList symbols{u"clock.fill"_s,          u"switch.2"_s,  u"battery.75percent"_s, u"wifi"_s,
                              u"speaker.wave.2.fill"_s, u"moon.fill"_s, u"magnifyingglass"_s};
    model::ExtraList extras;
    for (int i = 0; i < hidden + visible; ++i) {
        const QString name = names[i % names.size()] + (i < names.size() ? QString() : u" %1"_s.arg(i));
        extras.push_back(makeExtra(name, i < hidden));
        const int fromRight = hidden + visible - 1 - i;
        if (i >= hidden && fromRight < symbols.size()) {
            extras.back().icon = {};
            extras.back().symbol = symbols[fromRight];
            extras.back().tint = QColor::fromRgbF(1, 1, 1, 0.75F);
            extras.back().canMove = false;
        }
    }
    return extras;
}

ModelFixture::ModelFixture() : model(defaults, loginItems)
{
    model.onSelect = [this](const model::MenuExtra &extra) { journal << u"select "_s + extra.name; };
    model.onDismiss = [this] { journal << u"dismiss"_s; };
    model.onOpenSettings = [this] { journal << u"settings"_s; };
}

PanelScene::PanelScene(int hidden, int visible, double scale, QSize window) : scene(window, scale)
{
    model.setExtras(makeExtras(hidden, visible));
    model.setScanned(true);
    scene.load(R"(
        import QtQuick
        import Brimshade.Model
        import Brimshade.Panel
        Item {
            id: root
            required property NotchModel model
            required property TileActions actions
            required property PermissionRequest permission
            required property ShortcutRecorder recorder
            NotchRoot {
                objectName: "panel"
                anchors.fill: parent
                model: root.model
                actions: root.actions
                permission: root.permission
                recorder: root.recorder
            }
        })",
               {{u"model"_s, QVariant::fromValue(&model)},
                {u"actions"_s, QVariant::fromValue(&actions)},
                {u"permission"_s, QVariant::fromValue(&permission)},
                {u"recorder"_s, QVariant::fromValue(&recorder)}});
}

void PanelScene::open()
{
    model.setIsOpen(true);
    finishMotion();
}

QList<QQuickItem *> PanelScene::tiles() const
{
    QList<QQuickItem *> tiles = scene.findAll(u"tile"_s);
    tiles.removeIf([](QQuickItem *tile) { return tile->property("isLeaving").toBool(); });
    return tiles;
}

QQuickItem *PanelScene::tile(const QString &name) const
{
    for (QQuickItem *tile : tiles()) {
        if (tile->property("name").toString() == name)
            return tile;
    }
    return nullptr;
}

QStringList PanelScene::tileNames() const
{
    QList<QQuickItem *> sorted = tiles();
    std::ranges::sort(sorted, {}, [](QQuickItem *tile) { return tile->property("index").toInt(); });
    QStringList names;
    for (QQuickItem *tile : sorted)
        names << tile->property("name").toString();
    return names;
}

QRectF PanelScene::frame(const QString &objectName) const
{
    const QQuickItem *item = scene.find(objectName);
    return item ? scene.frameOf(item) : QRectF();
}

} // namespace brimshade::panel
