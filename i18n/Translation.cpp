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

namespace {

void install(QCoreApplication &application, const QLocale &locale, const QString &name)
{
    initTranslations();
    auto *translator = new QTranslator(&application);
    if (translator->load(locale, name, u"_"_s, u":/i18n"_s)
        || translator->load(QLocale(QLocale::English), name, u"_"_s, u":/i18n"_s))
        application.installTranslator(translator);
}

} // namespace

void installTranslation(QCoreApplication &application, const QLocale &locale)
{
    install(application, locale, u"brimshade"_s);
}

void installSessionTexts(QCoreApplication &application, const QLocale &locale)
{
    install(application, locale, u"session"_s);
}

} // namespace brimshade::i18n
