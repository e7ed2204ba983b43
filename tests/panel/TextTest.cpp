#include "PanelScene.h"
#include "i18n/Translation.h"

#include <QGuiApplication>
#include <QTranslator>
#include <gtest/gtest.h>

namespace brimshade::panel {
namespace {

using namespace Qt::StringLiterals;

class PanelTexts : public testing::TestWithParam<std::tuple<const char *, bool>> {
protected:
    PanelTexts()
    {
        const auto &[name, isSession] = GetParam();
        const QLocale locale(QString::fromLatin1(name));
        i18n::installTranslation(*qApp, locale);
        if (isSession)
            i18n::installSessionTexts(*qApp, locale);
    }
    ~PanelTexts() override { qDeleteAll(qApp->findChildren<QTranslator *>()); }

    static void expectRoom(const QQuickItem *item)
    {
        const QString text = item->property("text").toString();
        if (!text.isEmpty() && item->objectName() != u"name"_s && item->isVisible()) {
            EXPECT_FALSE(item->property("truncated").toBool()) << qPrintable(text);
            EXPECT_LE(item->property("contentWidth").toDouble(), item->width() + 0.5) << qPrintable(text);
            EXPECT_LE(item->property("contentHeight").toDouble(), item->height() + 0.5) << qPrintable(text);
        }
        for (const QQuickItem *child : item->childItems())
            expectRoom(child);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, PanelTexts, testing::Combine(testing::Values("en", "de"), testing::Bool()));

TEST_P(PanelTexts, HaveRoomInTheNarrowestPanel)
{
    PanelScene panel(3, 2);
    panel.open();
    ASSERT_EQ(panel.model.columns(), 4);
    const QQuickItem *whole = panel.scene.find(u"panel"_s);
    expectRoom(whole);
    EXPECT_FALSE(panel.scene.find(u"footer"_s)->property("text").toString().isEmpty());
    panel.model.setQuery(u"zzz"_s);
    panel.finishMotion();
    expectRoom(whole);
    panel.model.setQuery({});
    for (const bool trusted : {true, false}) {
        panel.model.setTrusted(trusted);
        panel.model.setExtras({});
        panel.finishMotion();
        expectRoom(whole);
    }
}

// Fonts may be wider elsewhere than here.
TEST_P(PanelTexts, SayTheHintInFewerWordsWhereItHasNoRoom)
{
    PanelScene panel(3, 2);
    panel.open();
    QQuickItem *line = panel.scene.find(u"footer"_s);
    const QString whole = line->property("text").toString();
    line->parentItem()->setWidth(line->property("contentWidth").toDouble() - 4);
    panel.scene.settle();
    EXPECT_LT(line->property("text").toString().size(), whole.size());
    EXPECT_TRUE(line->property("text").toString().startsWith(whole.section(u"·"_s, 0, 1)));
    EXPECT_FALSE(line->property("truncated").toBool());
}

} // namespace
} // namespace brimshade::panel
