#pragma once

namespace brimshade::desktop {

// How the toolkit draws for the whole program, whichever desktop it shows. Main thread; to be called after the
// application object is created and before the first window and the first text.

// The software renderer, unless a variable of Qt's chooses: QT_QUICK_BACKEND or QSG_RHI_BACKEND.
void preferSoftwareRenderer();
// The software renderer whatever a variable says: what is drawn off screen needs it.
void useSoftwareRenderer();
// Makes text exactly as heavy as its font was drawn.
void disableStemDarkening();

} // namespace brimshade::desktop
