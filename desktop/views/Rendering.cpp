#include "Rendering.h"

#include <QQuickWindow>
#include <QtGui/private/qfontengine_ft_p.h>

#include FT_MODULE_H

namespace brimshade::desktop {

void preferSoftwareRenderer()
{
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !qEnvironmentVariableIsSet("QSG_RHI_BACKEND")) {
        useSoftwareRenderer();
        return;
    }
    // The other renderers must not give text coloured edges either.
    constexpr auto edges = "QSG_DISTANCEFIELD_ANTIALIASING";
    if (!qEnvironmentVariableIsSet(edges))
        qputenv(edges, "gray");
}

void useSoftwareRenderer()
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

// Qt turns it on because it expects gamma-corrected blending, which text in Qt Quick does not get.
void disableStemDarkening()
{
    FT_Bool off = true;
    FT_Property_Set(qt_getFreetype(), "cff", "no-stem-darkening", &off);
}

} // namespace brimshade::desktop
