#include "PanelScene.h"
#include "i18n/Translation.h"

#include <QGuiApplication>
#include <QTranslator>
#include <gtest/gtest.h>

namespace brimshade::panel {
namespace {

using namespace Qt::StringLiterals;

class PanelTexts : public testing::TestWithParam<const char *> {
protected:
    PanelTexts() { i18n::installTranslation(*qApp, QLocale(QString::fromLatin1(GetParam()))); }
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

INSTANTIATE_TEST_SUITE_P(Languages, PanelTexts, testing::Values("en", "de"));

TEST_P(PanelTexts, HaveRoomInTheNarrowestPanel)
{
    PanelScene panel(3, 2);
    panel.open();
    ASSERT_EQ(panel.model.columns(), 4);
    const QQuickItem *content = panel.scene.find(u"content"_s);
    expectRoom(content);
    EXPECT_FALSE(panel.scene.find(u"footer"_s)->property("text").toString().isEmpty());
    panel.model.setQuery(u"zzz"_s);
    panel.finishMotion();
    expectRoom(content);
    panel.model.setQuery({});
    for (const bool trusted : {true, false}) {
        panel.model.setTrusted(trusted);
        panel.model.setExtras({});
        panel.finishMotion();
        expectRoom(content);
    }
}

} // namespace
} // namespace brimshade::panel
