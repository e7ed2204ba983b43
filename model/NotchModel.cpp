#include "NotchModel.h"
#include "menubar/Text.h"

#include <algorithm>

namespace brimshade::model {

bool NotchModel::isOpen() const
{
    return m_isOpen;
}

const ExtraList &NotchModel::extras() const
{
    return m_extras;
}

bool NotchModel::scanned() const
{
    return m_scanned;
}

bool NotchModel::trusted() const
{
    return m_trusted;
}

QString NotchModel::hoveredID() const
{
    return m_hoveredID;
}

QString NotchModel::query() const
{
    return m_query;
}

QString NotchModel::selectedID() const
{
    return m_selectedID;
}

QSizeF NotchModel::notch() const
{
    return m_notch;
}

QString NotchModel::movingID() const
{
    return m_movingID;
}

bool NotchModel::isRecording() const
{
    return m_isRecording;
}

QString NotchModel::message() const
{
    return m_message;
}

void NotchModel::setIsOpen(bool isOpen)
{
    assign(m_isOpen, isOpen, &NotchModel::isOpenChanged);
}

void NotchModel::setExtras(ExtraList extras)
{
    Q_EMIT objectWillChange();
    m_extras = std::move(extras);
    m_search = ItemSearch(m_extras);
    m_places.clear();
    for (std::size_t i = m_extras.size(); i-- > 0;)
        m_places[menubar::canonicalText(m_extras[i].id)] = i;
    m_hiddenCount = static_cast<int>(std::ranges::count_if(m_extras, &MenuExtra::isHidden));
    m_derived.reset();
    Q_EMIT extrasChanged();
    listsChanged();
    reselect();
}

void NotchModel::setScanned(bool scanned)
{
    assign(m_scanned, scanned, &NotchModel::scannedChanged);
}

void NotchModel::setTrusted(bool trusted)
{
    if (assign(m_trusted, trusted, &NotchModel::trustedChanged))
        Q_EMIT panelSizeChanged();
}

void NotchModel::setHoveredID(const QString &id)
{
    assign(m_hoveredID, id, &NotchModel::hoveredIDChanged);
}

void NotchModel::setSelectedID(const QString &id)
{
    m_wantsSelection = m_wantsSelection || !id.isEmpty();
    assign(m_selectedID, id, &NotchModel::selectedIDChanged);
}

void NotchModel::setNotch(QSizeF size)
{
    if (m_notch == size)
        return;
    m_notch = size;
    Q_EMIT notchChanged();
    Q_EMIT panelSizeChanged();
}

void NotchModel::setMovingID(const QString &id)
{
    assign(m_movingID, id, &NotchModel::movingIDChanged);
}

void NotchModel::setIsRecording(bool isRecording)
{
    if (assign(m_isRecording, isRecording, &NotchModel::isRecordingChanged))
        Q_EMIT panelSizeChanged();
}

void NotchModel::setMessage(const QString &message)
{
    assign(m_message, message, &NotchModel::messageChanged);
}

void NotchModel::listsChanged()
{
    Q_EMIT matchesChanged();
    Q_EMIT panelSizeChanged();
}

const NotchModel::Derived &NotchModel::derived() const
{
    if (!m_derived)
        m_derived = derive();
    return *m_derived;
}

NotchModel::Derived NotchModel::derive() const
{
    Derived lists;
    lists.matches = m_search.matches(m_query);
    // The query as typed decides here: a query of blanks filters nothing, yet shows the visible items.
    const bool listsVisible = m_showVisible || !m_query.isEmpty();
    for (const int i : lists.matches) {
        if (m_extras[i].isHidden)
            lists.hidden.push_back(i);
        else if (listsVisible)
            lists.visible.push_back(i);
    }
    return lists;
}

const NotchModel::Matches &NotchModel::matches() const
{
    return derived().matches;
}

const NotchModel::Matches &NotchModel::hiddenMatches() const
{
    return derived().hidden;
}

const NotchModel::Matches &NotchModel::visibleMatches() const
{
    return derived().visible;
}

int NotchModel::itemCount() const
{
    return static_cast<int>(m_extras.size());
}

int NotchModel::hiddenCount() const
{
    return m_hiddenCount;
}

int NotchModel::hiddenMatchCount() const
{
    return static_cast<int>(hiddenMatches().size());
}

int NotchModel::visibleMatchCount() const
{
    return static_cast<int>(visibleMatches().size());
}

PanelContent NotchModel::content() const
{
    return {m_trusted, !m_extras.empty(), hiddenMatchCount(), visibleMatchCount(), m_isRecording};
}

int NotchModel::columns() const
{
    return columnCount(content());
}

double NotchModel::gridHeight(int tiles) const
{
    return model::gridHeight(tiles, columns());
}

QSizeF NotchModel::panelSize() const
{
    return model::panelSize(content(), m_notch);
}

const MenuExtra *NotchModel::extraWithID(const QString &id) const
{
    const auto found = m_places.find(menubar::canonicalText(id));
    return found == m_places.end() ? nullptr : &m_extras[*found];
}

int NotchModel::resultCount() const
{
    return hiddenMatchCount() + visibleMatchCount();
}

const MenuExtra &NotchModel::result(int position) const
{
    const Matches &hidden = hiddenMatches();
    const int hiddenCount = hiddenMatchCount();
    return m_extras[position < hiddenCount ? hidden[position] : visibleMatches()[position - hiddenCount]];
}

int NotchModel::selectedPosition() const
{
    for (int i = 0; i < resultCount(); ++i)
        if (menubar::isSameText(result(i).id, m_selectedID))
            return i;
    return -1;
}

const MenuExtra *NotchModel::selectedMatch() const
{
    const int position = selectedPosition();
    return position < 0 ? nullptr : &result(position);
}

void NotchModel::assignQuery(const QString &text)
{
    Q_EMIT objectWillChange();
    if (m_query == text)
        return;
    m_query = text;
    m_derived.reset();
    Q_EMIT queryChanged();
    listsChanged();
}

void NotchModel::setQuery(const QString &text)
{
    assignQuery(text);
    setHoveredID({});
    selectFirst();
}

void NotchModel::selectFirst()
{
    setSelectedID(resultCount() == 0 ? QString() : result(0).id);
}

void NotchModel::reselect()
{
    if ((m_wantsSelection || !m_query.isEmpty()) && resultCount() > 0 && !selectedMatch())
        selectFirst();
}

void NotchModel::resetSearch()
{
    setHoveredID({});
    assignQuery({});
    setSelectedID({});
    m_wantsSelection = false;
}

void NotchModel::moveSelection(int step)
{
    if (resultCount() == 0)
        return;
    setHoveredID({});
    const qint64 target = qint64(selectedPosition()) + step;
    setSelectedID(result(static_cast<int>(std::clamp<qint64>(target, 0, resultCount() - 1))).id);
}

} // namespace brimshade::model
