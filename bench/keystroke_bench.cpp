// From a keystroke to the panel's new lists and size, with many items. The reference is the toolkit's own filter model
// over the same names, with the same words.
#include "Paired.h"
#include "model/NotchModel.h"
#include "platform/LoginItems.h"
#include "platform/UserDefaults.h"

#include <QSortFilterProxyModel>
#include <QStringListModel>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

class NoDefaults : public platform::UserDefaults {
    QVariant objectForKey(const QString &) const override { return {}; }
    bool boolForKey(const QString &) const override { return false; }
    QString stringForKey(const QString &) const override { return {}; }
    void setBool(bool, const QString &) override { }
    void setInteger(qlonglong, const QString &) override { }
    void setObject(const QString &, const QString &) override { }
    void setArray(const QVariantList &, const QString &) override { }
};

class NoLoginItems : public platform::LoginItems {
    platform::LoginItemStatus status() const override { return platform::LoginItemStatus::notRegistered; }
    std::expected<void, QString> registerMainApp() override { return {}; }
    std::expected<void, QString> unregisterMainApp() override { return {}; }
};

menubar::ExtraList manyItems(int count)
{
    static const QStringList words{u"Battery"_s, u"Überblick"_s, u"Calendar"_s, u"Wi-Fi"_s, u"Café Timer"_s};
    menubar::ExtraList extras(count);
    for (int i = 0; i < count; ++i) {
        extras[i].id = u"%1-0-app.item%1"_s.arg(i);
        extras[i].name = u"%1 %2"_s.arg(words[i % words.size()]).arg(i);
        extras[i].detail = u"Status of the item number %1"_s.arg(i);
        extras[i].isHidden = i % 3 == 0;
    }
    return extras;
}

// What a person types: from many results to few, to none, and back to all.
const QString &typed(int turn)
{
    static const QStringList queries{u"b"_s, u"ba"_s, u"bat"_s, u"batt"_s, u"café"_s, u"status"_s, u"zzz"_s, u""_s};
    return queries[turn % queries.size()];
}

void keystroke(benchmark::State &state)
{
    NoDefaults defaults;
    NoLoginItems loginItems;
    model::NotchModel model(defaults, loginItems);
    model.setExtras(manyItems(int(state.range(0))));

    QStringList names;
    for (const menubar::MenuExtra &extra : model.extras())
        names.append(extra.name);
    QStringListModel list(names);
    QSortFilterProxyModel filter;
    filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
    filter.setSourceModel(&list);

    bench::runPaired(
        state,
        [&](int turn) {
            model.setQuery(typed(turn));
            benchmark::DoNotOptimize(model.hiddenMatches().size() + model.visibleMatches().size());
            benchmark::DoNotOptimize(model.panelSize());
        },
        [&](int turn) {
            filter.setFilterFixedString(typed(turn));
            benchmark::DoNotOptimize(filter.rowCount());
        });
}
BENCHMARK(keystroke)->Arg(1'000)->Arg(10'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
