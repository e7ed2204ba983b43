#include "desktop/services/FileDefaults.h"
#include "support/Test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brimshade::desktop {

using testing::ElementsAre;

TEST(MemoryDefaultsTest, ReadsConvertAsOnTheMac)
{
    struct Case {
        QVariant stored;
        bool asBool;
        QStringView asString;
    };
    for (const Case &each :
         {Case{QVariant(), false, u""}, Case{true, true, u""}, Case{false, false, u""}, Case{1LL, true, u"1"},
          Case{0LL, false, u"0"}, Case{-3LL, true, u"-3"}, Case{0.5, true, u"0.5"}, Case{0.0, false, u"0"},
          Case{u"YES"_s, true, u"YES"}, Case{u"true"_s, true, u"true"}, Case{u" +01"_s, true, u" +01"},
          Case{u"NO"_s, false, u"NO"}, Case{u"0"_s, false, u"0"}, Case{u""_s, false, u""}, Case{u"on"_s, false, u"on"},
          Case{QVariantList{1}, false, u""}}) {
        QVariantMap values;
        if (each.stored.isValid())
            values.insert(u"key"_s, each.stored);
        const MemoryDefaults defaults(values);
        EXPECT_EQ(defaults.boolForKey(u"key"_s), each.asBool) << qPrintable(each.stored.toString());
        EXPECT_EQ(defaults.stringForKey(u"key"_s), each.asString.toString()) << qPrintable(each.stored.toString());
        EXPECT_EQ(defaults.objectForKey(u"key"_s).metaType(), each.stored.metaType());
    }
}

class FileDefaultsTest : public testing::Test {
protected:
    QByteArray content() const { return readFile(path); }
    void write(const QByteArray &bytes) const { writeFile(path, bytes); }
    FileDefaults::Report report()
    {
        return [this](const QString &message) { messages.append(message); };
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"settings.json"_s);
    QStringList messages;
};

TEST_F(FileDefaultsTest, KeepsValuesTheirTypesAndForeignKeys)
{
    write(R"({"foreign": {"deep": [null, 1.5]}, "count": 9007199254740993})");
    {
        FileDefaults defaults(path, report());
        defaults.setBool(true, u"flag"_s);
        defaults.setInteger(5, u"position"_s);
        defaults.setObject(u"none"_s, u"shortcut"_s);
    }
    const FileDefaults defaults(path, report());
    EXPECT_EQ(defaults.objectForKey(u"flag"_s).typeId(), QMetaType::Bool);
    EXPECT_EQ(defaults.objectForKey(u"position"_s), QVariant(5LL));
    EXPECT_EQ(defaults.stringForKey(u"shortcut"_s), u"none"_s);
    EXPECT_EQ(defaults.objectForKey(u"count"_s).toLongLong(), 9007199254740993);
    const QJsonValue deep = QJsonDocument::fromJson(content())[u"foreign"][u"deep"];
    EXPECT_EQ(QJsonDocument(deep.toArray()).toJson(QJsonDocument::Compact), "[null,1.5]");
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_THAT(files(), ElementsAre(u"settings.json"_s)); // nothing left over
}

TEST_F(FileDefaultsTest, WritesOnlyWhatChanges)
{
    FileDefaults(path, report()).setBool(false, u"flag"_s);
    const QByteArray marked = content() + "\n";
    write(marked);
    FileDefaults(path, report()).setBool(false, u"flag"_s);
    EXPECT_EQ(content(), marked);
    FileDefaults(path, report()).setInteger(0, u"flag"_s); // equal, but of another type
    EXPECT_EQ(FileDefaults(path).objectForKey(u"flag"_s).typeId(), QMetaType::LongLong);
}

TEST_F(FileDefaultsTest, ADamagedFileIsMovedAsideAndNeverOverAnother)
{
    const QByteArray damages[] = {"{\"flag\": tr", "[]", QByteArray((1 << 20) + 1, ' ') + "{}"};
    for (const QByteArray &damage : damages) {
        write(damage);
        FileDefaults defaults(path, report());
        EXPECT_TRUE(defaults.all().isEmpty());
        defaults.setBool(true, u"flag"_s);
    }
    EXPECT_EQ(messages.size(), 3);
    EXPECT_EQ(messages.value(1), u"%1: settings are damaged; moved to %1.damaged-2"_s.arg(path));
    EXPECT_TRUE(FileDefaults(path).boolForKey(u"flag"_s));
    EXPECT_THAT(files(),
                ElementsAre(u"settings.json"_s, u"settings.json.damaged"_s, u"settings.json.damaged-2"_s,
                            u"settings.json.damaged-3"_s));
    path += u".damaged"_s;
    EXPECT_EQ(content(), damages[0]);
}

TEST_F(FileDefaultsTest, AFailedWriteIsReportedAndTheValueStays)
{
    path = folder.filePath(u"file/settings.json"_s);
    writeFile(folder.filePath(u"file"_s), "in the way");
    {
        FileDefaults defaults(path, report());
        defaults.setBool(true, u"flag"_s);
        EXPECT_TRUE(defaults.boolForKey(u"flag"_s));
    }
    EXPECT_THAT(messages, ElementsAre(path + u": settings are not saved: Not a directory"_s));
}

TEST_F(FileDefaultsTest, MakesItsFolderAndFollowsALink)
{
    path = folder.filePath(u"a/b/settings.json"_s);
    FileDefaults(path, report()).setBool(true, u"flag"_s);
    const QString link = folder.filePath(u"link.json"_s);
    ASSERT_TRUE(QFile::link(path, link));
    FileDefaults(link, report()).setBool(false, u"flag"_s);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_FALSE(FileDefaults(path).boolForKey(u"flag"_s));
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(FileDefaultsTest, RemovesOnlyWhatADeadProcessLeft)
{
    const QString alive = path + u".1.new"_s;
    const QString dead = path + u".999999999.new"_s; // above any process number
    const QString foreign = path + u".backup.new"_s;
    for (const QString &each : {alive, dead, foreign})
        writeFile(each, {});
    const FileDefaults defaults(path, report());
    EXPECT_TRUE(QFile::exists(alive) && QFile::exists(foreign));
    EXPECT_FALSE(QFile::exists(dead));
}

} // namespace brimshade::desktop
