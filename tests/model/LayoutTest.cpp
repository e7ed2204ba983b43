#include "ModelContext.h"

namespace brimshade::model::tests {

constexpr QSizeF kNotch{200, 32};

TEST(Layout, MeasuresThePanel)
{
    const std::tuple<const char *, bool, int, int, QSizeF, int, QSizeF> cases[] = {
        {"untrusted", false, 0, 0, kNotch, 4, {488, 200}},
        {"untrusted with items", false, 12, 3, kNotch, 9, {728, 200}},
        {"nothing found", true, 0, 0, kNotch, 4, {488, 104}},
        {"both sections", true, 3, 2, kNotch, 4, {488, 288}},
        {"one section", true, 1, 0, kNotch, 4, {488, 176}},
        {"only visible", true, 0, 5, kNotch, 5, {488, 176}},
        {"two rows", true, 12, 3, kNotch, 9, {728, 372}},
        {"exactly one row", true, 9, 0, kNotch, 9, {728, 176}},
        {"one more", true, 10, 0, kNotch, 9, {728, 260}},
        {"wide notch", true, 9, 0, {600, 40}, 9, {888, 184}},
    };
    for (const auto &[what, trusted, hidden, visible, notch, columns, size] : cases) {
        ModelContext context;
        NotchModel &model = context.model();
        model.setTrusted(trusted);
        model.setExtras(items(hidden, visible));
        model.setNotch(notch);
        EXPECT_EQ(model.columns(), columns) << what;
        EXPECT_EQ(model.panelSize(), size) << what;
    }
}

TEST(Layout, AnnouncesTheSizeOnceForEachChangeOfWhatItDependsOn)
{
    ModelContext context;
    NotchModel &model = context.model();
    int sizes = 0;
    int wills = 0;
    QObject::connect(&model, &NotchModel::panelSizeChanged, [&] { ++sizes; });
    QObject::connect(&model, &NotchModel::objectWillChange, [&] { ++wills; });
    const auto announced = [&](const std::function<void()> &change) {
        sizes = wills = 0;
        change();
        return std::pair(sizes, wills);
    };
    using Counts = std::pair<int, int>;
    EXPECT_EQ(announced([&] { model.setExtras(items(1, 1)); }), Counts(1, 1));
    EXPECT_EQ(announced([&] { model.setShowVisible(false); }), Counts(1, 1));
    EXPECT_EQ(announced([&] { model.setTrusted(false); }), Counts(1, 1));
    EXPECT_EQ(announced([&] { model.setQuery(u"a"_s); }), Counts(1, 3));
    EXPECT_EQ(announced([&] { model.setNotch({180, 24}); }), Counts(1, 0)); // not a published field
    EXPECT_EQ(announced([&] { model.setHoveredID(u"a"_s); }), Counts(0, 1));
    EXPECT_EQ(announced([&] { model.setTrusted(false); }), Counts(0, 1)); // assigned, though unchanged
}

} // namespace brimshade::model::tests
