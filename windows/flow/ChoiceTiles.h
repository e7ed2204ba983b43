#pragma once
#include "ExtraRows.h"

#include <functional>

namespace brimshade::windows {

// The tiles of the setup flow's third step: each extra with the choice made for it.
class ChoiceTiles : public ExtraRows {
    Q_OBJECT

public:
    enum OwnRole { HiddenRole = FirstOwnRole };
    using EffectiveChoice = std::function<bool(const menubar::MenuExtra &)>; // true: tucked into the notch

    explicit ChoiceTiles(EffectiveChoice effectiveChoice, QObject *parent = nullptr);

    QHash<int, QByteArray> roleNames() const override;
    void choicesChanged() { allChanged({HiddenRole}); }

protected:
    QVariant value(int row, int role) const override;

private:
    EffectiveChoice m_effectiveChoice;
};

} // namespace brimshade::windows
