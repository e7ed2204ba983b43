#include "BuiltInDesktop.h"
#include "desktop/stage/file/DesktopFile.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

DesktopDescription builtInDesktop()
{
    QFile file(u":/desktop/desktop.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the built-in desktop is missing from the program");
    const auto description = parseDesktop(file.readAll());
    if (!description)
        qFatal("the built-in desktop: %s", qUtf8Printable(description.error()));
    return *description;
}

} // namespace brimshade::desktop
