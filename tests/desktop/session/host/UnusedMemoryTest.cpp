#include "desktop/session/UnusedMemory.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"

#include <QPointer>
#include <QQmlEngine>

namespace brimshade::desktop::session {

TEST(UnusedMemoryTest, IsGivenBackOnceNothingHasBeenOpenForAWhile)
{
    VirtualDispatch clock;
    QQmlEngine engine;
    UnusedMemory memory(engine, clock);
    const QPointer<QObject> garbage = new QObject;
    QJSEngine::setObjectOwnership(garbage, QJSEngine::JavaScriptOwnership);
    engine.newQObject(garbage);

    memory.setInUse(true);
    clock.advance(10);
    memory.setInUse(false);
    clock.advance(1.9);
    memory.setInUse(true); // opened again
    clock.advance(10);
    EXPECT_TRUE(garbage) << "something is open";

    memory.setInUse(false);
    clock.advance(1.9);
    EXPECT_TRUE(garbage) << "it may be opened again";
    clock.advance(0.2);
    EXPECT_FALSE(garbage);
}

} // namespace brimshade::desktop::session
