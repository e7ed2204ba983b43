// The settings file, and the settings that the program reads from it.
#include "Expect.h"
#include "desktop/services/MemoryDefaults.h"
#include "desktop/services/ScriptedLoginItem.h"
#include "desktop/services/SettingsFormat.h"
#include "model/NotchModel.h"

using namespace brimshade;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto values = desktop::readSettings({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
    if (!values)
        return 0;
    const QByteArray written = desktop::writeSettings(*values);
    const auto again = desktop::readSettings(written);
    fuzz::expect(again && desktop::writeSettings(*again) == written, "what was written");

    desktop::MemoryDefaults defaults(*values);
    desktop::ScriptedLoginItem loginItem;
    model::NotchModel model(defaults, loginItem);
    fuzz::expect(defaults.all() == *values, "settings that reading leaves alone");
    return 0;
}
