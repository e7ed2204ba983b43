#include "desktop/services/LogWriter.h"
#include "support/Test.h"

namespace brimshade::desktop {

using platform::LogLevel;

TEST(LogTest, FormatsAsTheUnifiedLogDoes)
{
    struct Case {
        const char *format;
        std::initializer_list<platform::LogArgument> arguments;
        const char *text;
    };
    for (const Case &each : {
             Case{"opened %{public}s, moving %s", {u"Wi-Fi %s"_s, u"812-0-x"_s}, "opened Wi-Fi %s, moving <private>"},
             Case{"%{bool}d %{bool}d %d", {true, false, true}, "true false 1"},
             Case{"%d of %lu at %hu%%", {-25204, 3UL, 45}, "-25204 of 3 at 45%"},
             Case{"%{private}d", {7}, "<private>"},
             Case{"%{public}s|%d", {7, u"secret"_s}, "<decode: mismatch>|<decode: mismatch>"},
             Case{"%d and %s", {1}, "1 and <decode: missing data>"},
             Case{"plain", {1}, "plain"},
             Case{"é %{public}s", {u"ü"_s}, "é ü"},
         }) {
        LogWriter log;
        log.write(LogLevel::info, each.format, each.arguments);
        EXPECT_EQ(log.take().at(0).text, QString::fromUtf8(each.text));
    }
}

TEST(LogTest, IsTakenOnceAndKeepsTheLatest)
{
    LogWriter log;
    for (int i = 0; i < 10500; ++i)
        log.write(i == 10499 ? LogLevel::error : LogLevel::info, "%d", {i});
    const std::vector<LogEntry> entries = log.take();
    ASSERT_EQ(entries.size(), 10000U);
    EXPECT_EQ(entries.front().text, u"500"_s);
    EXPECT_EQ(entries.back().level, LogLevel::error);
    EXPECT_TRUE(log.take().empty());
}

} // namespace brimshade::desktop
