#include "desktop/core/KeptOrderFile.h"
#include "support/TestDesktop.h"

namespace brimshade::desktop {

namespace {

// The program's own item and a bar that hosts programs of one item each, whose order is kept in a file.
class FiledBar : public TestDesktop {
public:
    explicit FiledBar(const QString &path)
        : TestDesktop(notchedDesktop({})), own(platform.statusBar.createStatusItem(28)),
          file(path, desktop.menuBar(), dispatch, [this](const QString &message) { messages.append(message); })
    {
        own->setAutosaveName(u"|"_s);
    }

    void launch(const QString &name)
    {
        const int pid = ++m_lastPid;
        desktop.launch({.description = brimshade::application(pid, name, {extra(name, 34)}),
                        .items = {{name, {.origin = ItemOrigin{QString::number(pid), name, u"main"_s}}}}});
    }
    void run() { dispatch.advance(0.2); } // reads the file if need be, and lets the bar settle
    QString order()
    {
        run();
        QStringList names;
        for (const BarItem &item : desktop.menuBar().items())
            names.append(item.identifier);
        return names.join(u' ');
    }
    void tuckAway(const QString &name)
    {
        const auto items = desktop.menuBar().items();
        const auto item = std::ranges::find(items, name, &BarItem::identifier);
        drag(item->frame.center(), {850, 10}, platform::kCommandFlag);
        run();
    }

    std::shared_ptr<platform::StatusItem> own;
    QStringList messages;
    KeptOrderFile file;

private:
    int m_lastPid = 100;
};

} // namespace

class KeptOrderFileTest : public testing::Test {
protected:
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"bar.json"_s);
};

TEST_F(KeptOrderFileTest, KeepsTheOrderFromOneStartToTheNext)
{
    {
        FiledBar bar(path);
        bar.run();
        EXPECT_TRUE(files().isEmpty()) << "there was nothing to keep";
        for (const QString &name : {u"relay"_s, u"vault"_s, u"quill"_s})
            bar.launch(name);
        bar.run();
        bar.tuckAway(u"vault"_s);
        EXPECT_EQ(bar.order(), u"vault | quill relay"_s);
    }
    const QByteArray written = readFile(path);
    {
        FiledBar bar(path);
        bar.launch(u"quill"_s); // before the file was read
        bar.run();
        for (const QString &name : {u"pigment"_s, u"vault"_s, u"relay"_s})
            bar.launch(name);
        EXPECT_EQ(bar.order(), u"vault | pigment quill relay"_s);
        EXPECT_TRUE(bar.messages.isEmpty());
    }
    EXPECT_NE(readFile(path), written);
    const QByteArray marked = readFile(path) + "\n";
    writeFile(path, marked);
    {
        FiledBar bar(path);
        bar.launch(u"vault"_s);
        EXPECT_EQ(bar.order(), u"vault |"_s);
    }
    EXPECT_EQ(readFile(path), marked) << "nothing changed";
    EXPECT_EQ(files(), QStringList{u"bar.json"_s});
}

TEST_F(KeptOrderFileTest, ADamagedFileIsMovedAsideAndAnotherVersionsLeftAlone)
{
    writeFile(path, "{\"version\": 1, \"rightOfBrimshade\": tr");
    {
        FiledBar bar(path);
        bar.launch(u"relay"_s);
        EXPECT_EQ(bar.order(), u"| relay"_s);
        EXPECT_EQ(bar.messages, QStringList{u"%1: places of tray items are damaged; moved to %1.damaged"_s.arg(path)});
    }
    EXPECT_TRUE(readFile(path).contains("relay"));
    EXPECT_TRUE(readFile(path + u".damaged"_s).endsWith("tr"));

    const QByteArray newer = "{\"version\": 2, \"bars\": []}";
    writeFile(path, newer);
    {
        FiledBar bar(path);
        bar.launch(u"relay"_s);
        EXPECT_EQ(bar.order(), u"| relay"_s);
        EXPECT_EQ(bar.messages,
                  QStringList{path
                              + u": places of tray items are from another version; they are left alone "
                                "and changes are not saved"_s});
    }
    EXPECT_EQ(readFile(path), newer);
}

} // namespace brimshade::desktop
