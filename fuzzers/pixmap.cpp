// The first byte says which kind of picture follows: a PNG, or an IconPixmap value as PlainValue.h writes it.
#include "desktop/tray/Pixmap.h"
#include "Expect.h"
#include "PlainValue.h"

using namespace brimshade;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    QStringList complaints;
    const QImage image = data[0] == 'P'
        ? desktop::tray::decodePng({reinterpret_cast<const char *>(data + 1), static_cast<qsizetype>(size - 1)})
        : desktop::tray::largestPixmap(fuzz::plainValue(data + 1, size - 1), complaints);
    fuzz::expect(image.width() <= desktop::tray::kLargestPixmapEdge
                     && image.height() <= desktop::tray::kLargestPixmapEdge,
                 "a small picture");
    return 0;
}
