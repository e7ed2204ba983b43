#include "Context.h"
#include "i18n/Translation.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QTranslator>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_PanelPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_WindowsPlugin)

namespace brimshade::windows {

using menubar::ExtraList;
using menubar::MenuExtra;
using namespace Qt::StringLiterals;

namespace {

class Swatch : public platform::ImageSource {
public:
    Swatch(const QColor &color, QChar initial) : m_color(color), m_initial(initial) { }
    void draw(QPainter &painter, const QRectF &rect) const override
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_color);
        painter.drawRoundedRect(rect, rect.width() * 0.22, rect.width() * 0.22);
        QFont font(u"Inter"_s);
        font.setPixelSize(int(rect.height() * 0.6));
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(rect, Qt::AlignCenter, m_initial);
    }
    QImage bitmap() const override
    {
        QImage image(128, 128, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        draw(painter, QRectF(0, 0, 128, 128));
        return image;
    }

private:
    QColor m_color;
    QChar m_initial;
};

MenuExtra withIcon(MenuExtra extra, const QColor &color)
{
    extra.icon = platform::Image(std::make_shared<Swatch>(color, extra.name.front()), {128, 128});
    return extra;
}

} // namespace

MenuExtra extra(const QString &id, const QString &name, bool isHidden, bool canMove)
{
    MenuExtra extra;
    extra.id = id;
    extra.name = name;
    extra.detail = name;
    extra.tint = Qt::gray;
    extra.isHidden = isHidden;
    extra.canMove = canMove;
    return extra;
}

ExtraList someExtras()
{
    ExtraList extras{withIcon(extra(u"ledger"_s, u"Ledger"_s, true), QColor(34, 160, 107)),
                     withIcon(extra(u"relay"_s, u"Relay"_s), QColor(59, 130, 246)), extra(u"wifi"_s, u"Wi-Fi"_s),
                     extra(u"clock"_s, u"Clock"_s, false, false)};
    extras[1].detail = u"Relay: 3 messages"_s;
    extras[2].symbol = u"wifi"_s;
    return extras;
}

Language::Language(const QLocale &locale)
{
    i18n::installTranslation(*qApp, locale);
}

Language::~Language()
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
}

Context::Context()
{
    model.onRefresh = [this] { ++scans; };
    model.onShowOnboarding = [this] { ++setups; };
    model.onSetHidden = [this](const MenuExtra &extra, bool hidden) {
        moves << extra.id + (hidden ? u" hide"_s : u" show"_s) + (model.dividerEnabled() ? u""_s : u" too early"_s);
    };
}

Context::~Context()
{
    m_scene.reset();
}

void Context::setExtras(const ExtraList &extras)
{
    model.setExtras(extras);
    model.setScanned(true);
    if (m_scene)
        m_scene->advance(800);
}

void Context::goTo(int step)
{
    while (flow.step() < step)
        flow.act();
    while (flow.step() > step)
        flow.back();
    if (m_scene)
        m_scene->advance(1500);
}

ui::OffscreenScene &Context::showSettings(double scale)
{
    return show("SettingsView {}", {480, 640}, scale);
}

ui::OffscreenScene &Context::showSetup(double scale)
{
    return show("OnboardingView {}", {640, 580}, scale);
}

ui::OffscreenScene &Context::show(const QByteArray &view, QSize size, double scale)
{
    m_scene.reset();
    m_scene = std::make_unique<ui::OffscreenScene>(size, scale);
    QVariantMap properties{{u"model"_s, QVariant::fromValue(&model)}};
    if (view.startsWith("Onboarding"))
        properties.insert(u"flow"_s, QVariant::fromValue(&flow));
    m_scene->load("import Brimshade.Windows\n" + view, properties);
    m_scene->root()->forceActiveFocus();
    m_scene->advance(100);
    return *m_scene;
}

QList<QQuickItem *> Context::visibleItems() const
{
    QList<QQuickItem *> items{m_scene->root()};
    for (qsizetype i = 0; i < items.size(); ++i)
        for (QQuickItem *child : items[i]->childItems())
            if (child->isVisible() && child->opacity() > 0)
                items << child;
    return items;
}

void Context::click(const QString &objectName)
{
    m_scene->click(m_scene->frameOf(item(objectName)).center());
    m_scene->advance(800);
}

void Context::key(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(m_scene->window(), &event);
        m_scene->settle();
    }
    m_scene->advance(800);
}

QString Context::focused() const
{
    const QQuickItem *item = m_scene->window()->activeFocusItem();
    return item ? item->objectName() : QString();
}

} // namespace brimshade::windows
