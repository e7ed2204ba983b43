#include "PanelScene.h"

#include <QPainter>
#include <QPainterPath>
#include <QtQml/qqmlextensionplugin.h>
#include <algorithm>
#include <cstdlib>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_PanelPlugin)

namespace brimshade::panel {

using namespace Qt::StringLiterals;

struct FakeSystem::Defaults : platform::UserDefaults {
    QVariant objectForKey(const QString &key) const override { return values.value(key); }
    bool boolForKey(const QString &key) const override { return values.value(key).toBool(); }
    QString stringForKey(const QString &key) const override { return values.value(key).toString(); }
    void setBool(bool value, const QString &key) override { values[key] = value; }
    void setInteger(qlonglong value, const QString &key) override { values[key] = value; }
    void setObject(const QString &value, const QString &key) override { values[key] = value; }

    QVariantMap values;
};

struct FakeSystem::LoginItem : platform::LoginItems {
    platform::LoginItemStatus status() const override { return platform::LoginItemStatus::notRegistered; }
    std::expected<void, QString> registerMainApp() override { return {}; }
    std::expected<void, QString> unregisterMainApp() override { return {}; }
};

struct FakeSystem::Menus : platform::Menus {
    explicit Menus(QStringList &done) : m_done(done) { }

    void popUpContextMenu(const platform::Menu &menu, platform::Work dismissed) override
    {
        QStringList titles;
        for (const platform::MenuItem &item : menu.items)
            titles << (item.isEnabled ? item.title : u'-' + item.title);
        m_done << u"menu "_s + titles.join(u',');
        if (dismissed)
            dismissed();
    }

private:
    QStringList &m_done;
};

struct FakeSystem::Trust : platform::Accessibility {
    explicit Trust(QStringList &done) : m_done(done) { }

    platform::AXUIElement createApplication(int) override { return {}; }
    platform::AXError setMessagingTimeout(const platform::AXUIElement &, double) override
    {
        return platform::kAXErrorFailure;
    }
    std::expected<platform::AXAttributeValue, platform::AXError> copyAttributeValue(const platform::AXUIElement &,
                                                                                    const QString &) override
    {
        return std::unexpected(platform::kAXErrorFailure);
    }
    platform::AXError performAction(const platform::AXUIElement &, const QString &) override
    {
        return platform::kAXErrorFailure;
    }
    bool isProcessTrusted() override { return false; }
    bool isProcessTrustedWithOptions(bool prompt) override
    {
        if (prompt)
            m_done << u"prompt"_s;
        return false;
    }

private:
    QStringList &m_done;
};

struct FakeSystem::Pages : platform::Workspace {
    explicit Pages(QStringList &done) : m_done(done) { }

    std::vector<platform::RunningApplication> runningApplications() const override { return {}; }
    int processIdentifier() const override { return 1; }
    std::optional<QString> bundleIdentifier() const override { return {}; }
    QString displayNameAtPath(const QString &) const override { return {}; }
    platform::Image iconForFile(const QString &) const override { return {}; }
    bool openURL(const QString &url) override
    {
        m_done << u"open "_s + url;
        return true;
    }
    platform::NotificationCenter &notificationCenter() override { std::abort(); } // no view may observe it

private:
    QStringList &m_done;
};

FakeSystem::FakeSystem()
    : defaults(std::make_unique<Defaults>()), loginItems(std::make_unique<LoginItem>()),
      menus(std::make_unique<Menus>(done)), accessibility(std::make_unique<Trust>(done)),
      workspace(std::make_unique<Pages>(done))
{
}

FakeSystem::~FakeSystem() = default;

namespace {

class IconSource : public platform::ImageSource {
public:
    IconSource(QString initial, QColor color) : m_initial(std::move(initial)), m_color(std::move(color)) { }

    void draw(QPainter &painter, const QRectF &rect) const override { painter.drawImage(rect, bitmap()); }

    QImage bitmap() const override
    {
        QImage image(128, 128, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient fill(0, 0, 0, 128);
        fill.setColorAt(0, m_color.lighter(130));
        fill.setColorAt(1, m_color.darker(115));
        QPainterPath square;
        square.addRoundedRect(8, 8, 112, 112, 26, 26);
        painter.fillPath(square, fill);
        QFont font(u"Inter"_s);
        font.setPixelSize(64);
        font.setWeight(QFont::Bold);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QRectF(0, 0, 128, 128), Qt::AlignCenter, m_initial);
        return image;
    }

private:
    QString m_initial;
    QColor m_color;
};

} // namespace

model::MenuExtra makeExtra(const QString &name, bool isHidden)
{
    model::MenuExtra extra;
    extra.id = name.toLower();
    extra.name = name;
    extra.detail = name + u" is what this is"_s;
    extra.tint = QColor::fromHsv(int(qHash(name) % 360), 180, 230);
    extra.icon = platform::Image(std::make_shared<IconSource>(name.left(1), extra.tint), QSizeF(128, 128));
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

ModelFixture::ModelFixture() : model(*system.defaults, *system.loginItems)
{
    QStringList &done = system.done;
    model.onSelect = [&done](const model::MenuExtra &extra) { done << u"select "_s + extra.name; };
    model.onDismiss = [&done] { done << u"dismiss"_s; };
    model.onOpenSettings = [&done] { done << u"settings"_s; };
}

PanelScene::PanelScene(int hidden, int visible, double scale) : scene({1000, 720}, scale), m_scale(scale)
{
    model.setExtras(makeExtras(hidden, visible));
    model.setScanned(true);
    scene.load(R"(
        import QtQuick
        import Brimshade.Panel
        Item {
            id: root
            required property NotchModel model
            required property TileActions actions
            required property PermissionRequest permission
            property bool wallpaper: false
            Rectangle {
                anchors.fill: parent
                visible: root.wallpaper
                gradient: Gradient {
                    orientation: Gradient.Horizontal
                    GradientStop { position: 0; color: "#6f8fc9" }
                    GradientStop { position: 0.5; color: "#c29db4" }
                    GradientStop { position: 1; color: "#e8c49c" }
                }
            }
            NotchRoot {
                objectName: "panel"
                anchors.fill: parent
                model: root.model
                actions: root.actions
                permission: root.permission
            }
        })",
               {{u"model"_s, QVariant::fromValue(&model)},
                {u"actions"_s, QVariant::fromValue(&actions)},
                {u"permission"_s, QVariant::fromValue(&permission)}});
}

void PanelScene::open()
{
    model.setIsOpen(true);
    finishMotion();
}

QQuickItem *PanelScene::tile(const QString &name) const
{
    for (QQuickItem *tile : scene.findAll(u"tile"_s)) {
        if (tile->property("name").toString() == name)
            return tile;
    }
    return nullptr;
}

QStringList PanelScene::tileNames() const
{
    QList<QQuickItem *> tiles = scene.findAll(u"tile"_s);
    std::ranges::sort(tiles, {}, [](QQuickItem *tile) { return tile->property("index").toInt(); });
    QStringList names;
    for (QQuickItem *tile : tiles)
        names << tile->property("name").toString();
    return names;
}

QRectF PanelScene::frame(const QString &objectName) const
{
    const QQuickItem *item = scene.find(objectName);
    return item ? scene.frameOf(item) : QRectF();
}

QColor PanelScene::pixel(QPointF at)
{
    return scene.picture().pixelColor((at * m_scale).toPoint());
}

void PanelScene::setWallpaper(bool shown)
{
    scene.root()->setProperty("wallpaper", shown);
}

} // namespace brimshade::panel
