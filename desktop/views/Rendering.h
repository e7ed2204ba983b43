#pragma once

namespace brimshade::desktop {

// How the toolkit draws for the whole program, whichever desktop it shows. Main thread; after the application object,
// before the first window and the first text.

// The software renderer, unless a variable of Qt's chooses: QT_QUICK_BACKEND or QSG_RHI_BACKEND.
void preferSoftwareRenderer();
// The software renderer whatever a variable says: what is drawn off screen needs it.
void useSoftwareRenderer();
// Text is as heavy as its font was drawn.
void disableStemDarkening();

} // namespace brimshade::desktop
