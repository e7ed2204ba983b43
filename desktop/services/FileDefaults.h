#pragma once
#include "MemoryDefaults.h"

#include <functional>
#include <memory>

namespace brimshade::desktop {

// The store in one JSON file: read when it is made, written whole and atomically at every change, in order, by a
// thread of its own. Destroying it waits for the last write. What the file holds beyond our values is kept.
class FileDefaults : public MemoryDefaults {
public:
    using Report = std::function<void(const QString &message)>; // on the main thread or the writer's

    // A damaged file is renamed to "<path>.damaged" (".damaged-2", …) and reported; a missing one is an empty store.
    explicit FileDefaults(const QString &path, Report report = {});
    ~FileDefaults() override;

    static QString defaultPath(); // $XDG_CONFIG_HOME/brimshade/settings.json

private:
    class Writer;

    FileDefaults(const QString &path, const Report &report, QVariantMap values);
    void changed() override;

    std::unique_ptr<Writer> m_writer;
};

} // namespace brimshade::desktop
