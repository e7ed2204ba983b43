#pragma once
#include "KeptOrder.h"
#include "Lifetime.h"
#include "desktop/services/StoredFile.h"

#include <QObject>

namespace brimshade::platform {
class Dispatch;
}

namespace brimshade::desktop {

class MenuBar;

// Keeps a bar's order in a file, by way of StoredFile: the file is read in the background, the bar then adopts the
// order, and from then on every change is written. Main thread; the bar and the dispatch outlive it.
class KeptOrderFile : public QObject {
public:
    KeptOrderFile(const QString &path, MenuBar &bar, platform::Dispatch &dispatch, const Report &report);
    ~KeptOrderFile() override; // waits for what is still to be written

    static QString defaultPath(); // $XDG_STATE_HOME/brimshade/bar.json

private:
    struct Content {
        KeptOrder order;
        bool mayWrite = true;
    };
    static Content read(const StoredFile &file, const Report &report);
    void take(const Content &content);
    void save();

    const StoredFile m_file;
    const Report m_report;
    MenuBar &m_bar;
    std::unique_ptr<StoredFileWriter> m_writer; // null: the file is not read yet, or is never written
    QByteArray m_content; // what the file holds, or soon will
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop
