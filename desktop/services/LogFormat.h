#pragma once
#include "platform/Log.h"

#include <span>

namespace brimshade::desktop {

// A log line in os_log's formats, strings private unless %{public}s says otherwise. A missing argument, or one of the
// wrong type, is shown as the Mac shows it: "<decode: missing data>", "<decode: mismatch>".
QString formatLog(QStringView format, std::span<const platform::LogArgument> arguments);

} // namespace brimshade::desktop
