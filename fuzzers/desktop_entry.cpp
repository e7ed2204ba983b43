// Desktop entries, read as those of installed programs and as those in the session's autostart folders.
#include "Expect.h"
#include "desktop/services/AutostartEntry.h"
#include "desktop/services/DesktopEntry.h"
#include "desktop/services/KeyFile.h"

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

// text: one line, as values are.
bool comesBack(const QString &text)
{
    const QByteArray content = "[Desktop Entry]\nName=" + desktop::escaped(text).toUtf8();
    return desktop::readDesktopEntry(content).value(u"Name"_s) == text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto entry = desktop::parseDesktopEntry(u"org.example"_s, content, u"de_DE"_s);
    fuzz::expect(!entry || entry->name.size() <= 256, "a name that can be shown");
    fuzz::expect(!entry || !entry->executable.contains(u'/'), "the name of a file");
    desktop::readAutostartEntry(content);
    const auto text = QString::fromUtf8(content).trimmed();
    fuzz::expect(text.contains(QChar::ReplacementCharacter) || comesBack(text), "what was written");
    return 0;
}
