#include "Translation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// Outside any namespace, as the resource's own function is.
static void initTranslations()
{
    Q_INIT_RESOURCE(brimshade_translations);
}

namespace brimshade::i18n {

using namespace Qt::StringLiterals;

void installTranslation(QCoreApplication &application, const QLocale &locale)
{
    initTranslations();
    auto *translator = new QTranslator(&application);
    if (translator->load(locale, u"brimshade"_s, u"_"_s, u":/i18n"_s)
        || translator->load(QLocale(QLocale::English), u"brimshade"_s, u"_"_s, u":/i18n"_s))
        application.installTranslator(translator);
}

} // namespace brimshade::i18n
