#pragma once
class QCoreApplication;
class QLocale;

namespace brimshade::i18n {

// Gives the application the texts of that locale's languages, or English ones with their plural forms where none of
// them is there. Once, before the first view is made.
void installTranslation(QCoreApplication &application, const QLocale &locale);

// On top of that, where the program is the menu bar of a session: texts that name the Mac, its keys or its permission
// say what is true there instead. The one place of such texts is the files session_….ts.
void installSessionTexts(QCoreApplication &application, const QLocale &locale);

} // namespace brimshade::i18n
