#pragma once
#include "MemoryDefaults.h"
#include "StoredFile.h"

namespace brimshade::desktop {

// A store in one JSON file: read on construction, since everything needs it at the start, and written after every
// change by a StoredFileWriter. Keys in the file that are not ours are kept.
class FileDefaults : public MemoryDefaults {
public:
    using Report = desktop::Report;

    explicit FileDefaults(const QString &path, const Report &report = {});
    ~FileDefaults() override;

    static QString defaultPath(); // $XDG_CONFIG_HOME/brimshade/settings.json

private:
    struct Content {
        QVariantMap values;
        bool mayWrite = true;
    };

    FileDefaults(const StoredFile &file, const Report &report);
    FileDefaults(const StoredFile &file, const Report &report, Content content);
    static Content read(const StoredFile &file, const Report &report);
    void changed() override;

    std::unique_ptr<StoredFileWriter> m_writer; // null: nothing is written
};

} // namespace brimshade::desktop
