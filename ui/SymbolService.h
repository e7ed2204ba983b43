#pragma once
#include "platform/Symbol.h"

namespace brimshade::ui {

// The symbols of the table as template images, as large as SymbolIcon draws them.
class SymbolService : public platform::Symbols {
public:
    platform::Image symbolImage(const QString &name, const QString &accessibilityDescription,
                                const platform::SymbolConfiguration &configuration) override;
};

} // namespace brimshade::ui
