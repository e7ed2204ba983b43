#pragma once
#include "model/NotchModel.h"
#include "support/FakeSystem.h"

namespace brimshade::model::tests {

inline MenuExtra item(const QString &id, bool isHidden = false, const QString &name = {}, const QString &detail = {})
{
    MenuExtra extra;
    extra.id = id;
    extra.name = name;
    extra.detail = detail;
    extra.isHidden = isHidden;
    return extra;
}

// Hidden items h0, h1, …, then visible ones v0, v1, …
inline ExtraList items(int hidden, int visible)
{
    ExtraList extras;
    for (int i = 0; i < hidden; ++i)
        extras.push_back(item(u"h%1"_s.arg(i), true, u"Hidden"_s));
    for (int i = 0; i < visible; ++i)
        extras.push_back(item(u"v%1"_s.arg(i), false, u"Visible"_s));
    return extras;
}

// A model on services; a test sets stored values before it first uses the model.
struct ModelContext : FakeSystem {
    NotchModel &model()
    {
        if (!m_model)
            m_model = std::make_unique<NotchModel>(defaults, loginItems);
        return *m_model;
    }
    void closeModel() { m_model.reset(); }

    QStringList ids(const NotchModel::Matches &matches)
    {
        QStringList list;
        for (const int i : matches)
            list.append(model().extras().at(i).id);
        return list;
    }

private:
    std::unique_ptr<NotchModel> m_model;
};

} // namespace brimshade::model::tests
