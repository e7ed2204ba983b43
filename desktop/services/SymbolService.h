#pragma once
#include "platform/Symbol.h"

namespace brimshade::desktop {

// The symbols of the table in ui/symbols as template images, as large as the views draw them.
class SymbolService : public platform::Symbols {
public:
    platform::Image symbolImage(const QString &name, const QString &accessibilityDescription,
                                const platform::SymbolConfiguration &configuration) override;
};

} // namespace brimshade::desktop
