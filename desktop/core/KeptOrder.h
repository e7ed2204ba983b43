#pragma once
#include <QDate>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace brimshade::desktop {

// What an item is, each time its program runs.
struct KeptItem {
    QString program; // its desktop entry, else the file that it runs
    QString id; // as the item itself says; may be empty
    int ordinal = 0; // tells several apart that are there at once and say the same

    bool isSame(const KeptItem &other) const { return program == other.program && id == other.id; }
    bool operator==(const KeptItem &) const = default;
};

// The order, right to left, of Brimshade's own item and those that come and go, including those that are not there now:
// an item that comes back stands where it stood. A value; it knows nothing of frames or files.
class KeptOrder {
public:
    using Today = std::function<QDate()>;
    using Slot = std::optional<KeptItem>; // absent: Brimshade's own item

    struct Record {
        Slot slot;
        QDate seen; // the day on which it was last there; not updated while it is
        bool isPresent = false;
    };

    static constexpr int kLongestText = 128; // characters that are kept of a program and of an id
    // Absent items are forgotten after kDaysKept days; with more than kMost, those unseen for longest.
    static constexpr int kDaysKept = 90;
    static constexpr std::size_t kMost = 600;

    explicit KeptOrder(Today today = currentDay);
    static QDate currentDay(); // UTC

    const std::vector<Record> &records() const { return m_records; }
    QDate lastSeen(const Record &record) const; // today for one that is present

    // An item that was never here is put directly right of our own one. The result has the first ordinal that no
    // present item has.
    KeptItem arrive(const KeptItem &who);
    void leave(const KeptItem &item);
    // A present item turns out to be another one: it goes where that one stood, or stays where it is if that one is
    // unknown.
    KeptItem rename(const KeptItem &item, const KeptItem &who);
    // The moved item now stands among the present ones as listed, and passes no more absent ones than it must.
    void move(const Slot &moved, const std::vector<Slot> &present);

    // Adds it left of all, as not present. An item that is there already keeps its place; our own one is moved to the
    // end.
    void append(const Slot &slot, QDate seen);
    // Takes up an order that was kept earlier, and fits the present items into it.
    void restore(KeptOrder before);

private:
    std::vector<Record>::iterator find(const Slot &slot);
    KeptItem numbered(KeptItem who);
    void enter(const KeptItem &item);
    void forget();

    Today m_today;
    std::vector<Record> m_records; // our own item's among them
};

} // namespace brimshade::desktop
