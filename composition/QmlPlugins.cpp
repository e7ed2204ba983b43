#include <QtQml/qqmlextensionplugin.h>

// The QML modules are static libraries: naming their plug-ins here is what keeps them in the program.
Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_NotchPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_PanelPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_WindowsPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_DesktopPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_SessionPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_StagePlugin)
