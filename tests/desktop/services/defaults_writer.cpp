// Changes a setting as fast as it can until it is killed. Prints what it found at its start, then a line now and then.
#include "desktop/services/FileDefaults.h"

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    bool isDamaged = false;
    brimshade::desktop::FileDefaults defaults(QString::fromLocal8Bit(argv[1]), [&](const QString &message) {
        isDamaged = true;
        std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    if (isDamaged)
        return 3;
    // Long enough that a torn write shows.
    defaults.setObject(QString(20'000, u'x'), u"padding"_s);
    qlonglong count = defaults.objectForKey(u"count"_s).toLongLong();
    while (true) {
        std::printf("%lld\n", count);
        std::fflush(stdout);
        for (int i = 0; i < 20; ++i)
            defaults.setInteger(++count, u"count"_s);
    }
}
