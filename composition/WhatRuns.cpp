#include "WhatRuns.h"

#include <QGuiApplication>
#include <QLocale>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace brimshade::composition {

QString whatRuns()
{
    return QStringList{QStringLiteral("Brimshade " BRIMSHADE_VERSION),
                       u"Qt "_s + QString::fromLatin1(qVersion()),
                       QSysInfo::prettyProductName(),
                       QSysInfo::currentCpuArchitecture(),
                       QGuiApplication::platformName(),
                       qEnvironmentVariable("XDG_CURRENT_DESKTOP", u"no desktop named"_s),
                       QLocale().name()}
        .join(u", "_s);
}

} // namespace brimshade::composition
