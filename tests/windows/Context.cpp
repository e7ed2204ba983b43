#include "Context.h"
#include "i18n/Translation.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QTranslator>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_NotchPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_WindowsPlugin)

namespace brimshade::windows {

using menubar::ExtraList;
using menubar::MenuExtra;

MenuExtra extra(const QString &name, bool isHidden, bool canMove)
{
    MenuExtra extra;
    extra.id = name.toLower();
    extra.name = extra.detail = name;
    extra.tint = Qt::gray;
    extra.isHidden = isHidden;
    extra.canMove = canMove;
    return extra;
}

ExtraList someExtras()
{
    ExtraList extras{extra(u"Ledger"_s, true), extra(u"Relay"_s), extra(u"Wi-Fi"_s), extra(u"Clock"_s, false, false)};
    extras[0].icon = extras[1].icon = icon(Qt::blue);
    extras[1].detail = u"Relay: 3 messages"_s;
    extras[2].symbol = u"wifi"_s;
    return extras;
}

Language::Language(const QLocale &locale, bool isSession)
{
    i18n::installTranslation(*qApp, locale);
    if (isSession)
        i18n::installSessionTexts(*qApp, locale);
}

Language::~Language()
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
}

Context::Context()
{
    loginItems.failure = u"not allowed"_s;
    model.onRefresh = [this] { ++scans; };
    model.onShowOnboarding = [this] { ++setups; };
    model.onSetHidden = [this](const MenuExtra &extra, bool hidden) {
        moves << extra.id + (hidden ? u" hide"_s : u" show"_s);
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

bool Context::isLooking()
{
    const int before = accessibility.questions;
    dispatch.advance(2);
    return accessibility.questions > before;
}

ui::OffscreenScene &Context::showSettings(double scale, MenuBarChoices *menuBar)
{
    return show("SettingsView {}", {480, 640}, scale, {{u"menuBar"_s, QVariant::fromValue(menuBar)}});
}

ui::OffscreenScene &Context::showSetup(double scale)
{
    return show("OnboardingView {}", {640, 580}, scale, {{u"flow"_s, QVariant::fromValue(&flow)}});
}

ui::OffscreenScene &Context::show(const QByteArray &view, QSize size, double scale, const QVariantMap &more)
{
    m_scene.reset();
    m_scene = std::make_unique<ui::OffscreenScene>(size, scale);
    QVariantMap properties = more;
    properties.insert(u"model"_s, QVariant::fromValue(&model));
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
