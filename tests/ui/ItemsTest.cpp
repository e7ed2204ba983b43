#include "OffscreenScene.h"
#include "support/Test.h"

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)

namespace brimshade::ui {

TEST(Items, TheSpinnerTurnsOnlyWhileItIsSeen)
{
    OffscreenScene scene({40, 40}, 1);
    QQuickItem *root = scene.load("import QtQuick\nimport Brimshade.Ui\nItem { Spinner { } }");
    ASSERT_TRUE(root);
    const QQuickItem *wheel = scene.find(u"spinnerWheel"_s);
    const auto turnedIn = [&](int milliseconds) {
        const double before = wheel->rotation();
        scene.advance(milliseconds);
        return wheel->rotation() != before;
    };
    EXPECT_TRUE(turnedIn(160));
    root->setVisible(false);
    scene.settle();
    EXPECT_FALSE(turnedIn(160));
    root->setVisible(true);
    scene.settle();
    EXPECT_TRUE(turnedIn(160));
}

} // namespace brimshade::ui
