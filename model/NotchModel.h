#pragma once
#include "ItemSearch.h"
#include "ItemShortcuts.h"
#include "PanelLayout.h"
#include "Shortcut.h"
#include "menubar/MenuExtra.h"

#include <QHash>
#include <QObject>
#include <QSizeF>
#include <functional>

namespace brimshade::platform {
class LoginItems;
class UserDefaults;
} // namespace brimshade::platform

namespace brimshade::model {

using menubar::ExtraList;
using menubar::MenuExtra;

// The one observable state of the program: written by the coordinator and by the views' bindings, read by every
// view. Main thread only. objectWillChange comes before every assignment to a published field, the field's own signal
// after one that changed it (extras: after every one).
// Ids and the message are empty where absent. Derived lists keep the scanner's order. With a query, or once there has
// been a selection, a match stays selected when new extras come, provided there is one: the first if the selected one
// has gone.
class NotchModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen WRITE setIsOpen NOTIFY isOpenChanged)
    Q_PROPERTY(bool scanned READ scanned NOTIFY scannedChanged)
    Q_PROPERTY(bool trusted READ trusted WRITE setTrusted NOTIFY trustedChanged)
    Q_PROPERTY(QString hoveredID READ hoveredID WRITE setHoveredID NOTIFY hoveredIDChanged)
    Q_PROPERTY(QString query READ query NOTIFY queryChanged)
    Q_PROPERTY(QString selectedID READ selectedID WRITE setSelectedID NOTIFY selectedIDChanged)
    Q_PROPERTY(QSizeF notch READ notch NOTIFY notchChanged)
    Q_PROPERTY(QString movingID READ movingID NOTIFY movingIDChanged)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY isRecordingChanged)
    Q_PROPERTY(QString message READ message WRITE setMessage NOTIFY messageChanged)
    Q_PROPERTY(bool showVisible READ showVisible WRITE setShowVisible NOTIFY showVisibleChanged)
    Q_PROPERTY(bool hoverToOpen READ hoverToOpen WRITE setHoverToOpen NOTIFY hoverToOpenChanged)
    Q_PROPERTY(brimshade::model::Shortcut shortcut READ shortcut WRITE setShortcut NOTIFY shortcutChanged)
    Q_PROPERTY(bool dividerEnabled READ dividerEnabled WRITE setDividerEnabled NOTIFY dividerEnabledChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY extrasChanged)
    Q_PROPERTY(int hiddenCount READ hiddenCount NOTIFY extrasChanged)
    Q_PROPERTY(int hiddenMatchCount READ hiddenMatchCount NOTIFY matchesChanged)
    Q_PROPERTY(int visibleMatchCount READ visibleMatchCount NOTIFY matchesChanged)
    Q_PROPERTY(int columns READ columns NOTIFY matchesChanged)
    Q_PROPERTY(QSizeF panelSize READ panelSize NOTIFY panelSizeChanged)

public:
    // Indices into extras(), ascending.
    using Matches = std::vector<int>;

    // Reads the settings, then the login item's status. Both services outlive the model.
    NotchModel(platform::UserDefaults &defaults, platform::LoginItems &loginItems, QObject *parent = nullptr);
    ~NotchModel() override;

    bool isOpen() const;
    const ExtraList &extras() const;
    bool scanned() const;
    bool trusted() const;
    QString hoveredID() const;
    QString query() const;
    QString selectedID() const;
    QSizeF notch() const; // points
    QString movingID() const;
    bool isRecording() const; // an item's shortcut, in the panel
    QString message() const;
    bool showVisible() const;
    bool hoverToOpen() const;
    Shortcut shortcut() const;
    bool dividerEnabled() const;
    bool launchAtLogin() const;

    void setIsOpen(bool isOpen);
    void setExtras(ExtraList extras);
    void setScanned(bool scanned);
    void setTrusted(bool trusted);
    void setHoveredID(const QString &id);
    void setSelectedID(const QString &id);
    void setNotch(QSizeF size); // not a published field: no objectWillChange
    void setMovingID(const QString &id);
    void setIsRecording(bool isRecording);
    void setMessage(const QString &message);
    // Written through to the store on every assignment, also of an unchanged value.
    void setShowVisible(bool on);
    void setHoverToOpen(bool on);
    void setShortcut(Shortcut shortcut);
    void setDividerEnabled(bool on);
    void setLaunchAtLogin(bool on); // snaps back to the system's answer if it refuses

    ItemShortcuts &itemShortcuts() { return m_itemShortcuts; }
    const ItemShortcuts &itemShortcuts() const { return m_itemShortcuts; }

    const Matches &matches() const;
    const Matches &hiddenMatches() const;
    const Matches &visibleMatches() const;
    int itemCount() const;
    int hiddenCount() const;
    int hiddenMatchCount() const;
    int visibleMatchCount() const;
    int columns() const;
    double gridHeight(int tiles) const;
    QSizeF panelSize() const; // points, the notch's height included

    const MenuExtra *extraWithID(const QString &id) const; // null when there is none
    const MenuExtra *selectedMatch() const; // null when no match is selected
    void setQuery(const QString &text); // and selects the first match
    void resetSearch(); // no hover, no query, and no selection until a key or the pointer makes one
    void moveSelection(int step);

    // Installed once by the coordinator; they do nothing until then.
    std::function<void(const MenuExtra &)> onSelect = [](const MenuExtra &) {};
    std::function<void(const MenuExtra &)> onActivate = [](const MenuExtra &) {};
    std::function<void()> onDismiss = [] {};
    std::function<void(const MenuExtra &, bool hidden)> onSetHidden = [](const MenuExtra &, bool) {};
    std::function<void(const MenuExtra &)> onRecordShortcut = [](const MenuExtra &) {};
    std::function<void(const MenuExtra &)> onRemoveShortcut = [](const MenuExtra &) {};
    std::function<void()> onOpenSettings = [] {};
    std::function<void()> onSettingsChanged = [] {};
    std::function<void()> onRefresh = [] {};
    std::function<void()> onShowOnboarding = [] {};

Q_SIGNALS:
    void objectWillChange();
    void isOpenChanged();
    void extrasChanged();
    void scannedChanged();
    void trustedChanged();
    void hoveredIDChanged();
    void queryChanged();
    void selectedIDChanged();
    void notchChanged();
    void movingIDChanged();
    void isRecordingChanged();
    void messageChanged();
    void showVisibleChanged();
    void hoverToOpenChanged();
    void shortcutChanged();
    void dividerEnabledChanged();
    void launchAtLoginChanged();
    void matchesChanged(); // extras, query or showVisible changed: the derived lists may differ
    void panelSizeChanged(); // once for each change of these, of trusted, isRecording or notch

private:
    struct Derived {
        Matches matches, hidden, visible;
    };

    template <typename T> bool assign(T &field, const T &value, void (NotchModel::*changed)())
    {
        Q_EMIT objectWillChange();
        if (field == value)
            return false;
        field = value;
        Q_EMIT(this->*changed)();
        return true;
    }
    void assignQuery(const QString &text);
    void writeThrough(const bool &field, const QString &key);
    void listsChanged();
    const Derived &derived() const;
    Derived derive() const;
    PanelContent content() const;
    int resultCount() const;
    const MenuExtra &result(int position) const; // among the hidden matches, then the visible ones
    int selectedPosition() const; // -1 for none
    void selectFirst(); // nothing where there are no matches
    void reselect();

    platform::UserDefaults &m_defaults;
    platform::LoginItems &m_loginItems;

    bool m_isOpen = false;
    ExtraList m_extras;
    bool m_scanned = false;
    bool m_trusted = true;
    QString m_hoveredID;
    QString m_query;
    QString m_selectedID;
    bool m_wantsSelection = false; // there has been one since resetSearch()
    QSizeF m_notch{200, 32};
    QString m_movingID;
    bool m_isRecording = false;
    QString m_message;
    bool m_showVisible = true;
    bool m_hoverToOpen = false;
    Shortcut m_shortcut = Shortcut::none;
    bool m_dividerEnabled = false;
    bool m_launchAtLogin = false;
    ItemShortcuts m_itemShortcuts;

    ItemSearch m_search; // of m_extras
    QHash<QString, std::size_t> m_places; // index in m_extras, by canonical id; the first of several
    int m_hiddenCount = 0;
    mutable std::optional<Derived> m_derived; // computed by the last read, kept until something changes
};

} // namespace brimshade::model
