#pragma once
#include "MemoryDefaults.h"

#include <functional>
#include <memory>

namespace brimshade::desktop {

// The store in one JSON file: read when it is made, replaced as a whole by a thread of its own after every change.
// Changes that come while it writes go into the next writing together; destroying it waits for the last one. What
// the file holds beyond our own keys is kept.
class FileDefaults : public MemoryDefaults {
public:
    using Report = std::function<void(const QString &message)>; // on the main thread or on the writing one

    // A damaged file is renamed to "<path>.damaged" (or ".damaged-2", …) and reported; a missing one is an empty
    // store. One that can neither be read nor moved away is reported and left alone: then nothing is written.
    explicit FileDefaults(const QString &path, const Report &report = {});
    ~FileDefaults() override;

    static QString defaultPath(); // $XDG_CONFIG_HOME/brimshade/settings.json

private:
    class Writer;
    struct Content {
        QVariantMap values;
        bool mayWrite = true;
    };

    FileDefaults(const QString &path, const Report &report, Content content);
    static Content read(const QString &path, const Report &report);
    void changed() override;

    std::unique_ptr<Writer> m_writer; // null: nothing is written
};

} // namespace brimshade::desktop
