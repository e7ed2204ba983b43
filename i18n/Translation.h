#pragma once
class QCoreApplication;
class QLocale;

namespace brimshade::i18n {

// Gives the application the texts of that locale's languages, or English ones with their plural forms where none of
// them is there. Once, before the first view is made.
void installTranslation(QCoreApplication &application, const QLocale &locale);

} // namespace brimshade::i18n
