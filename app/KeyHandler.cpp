#include "KeyHandler.h"

#include "model/NotchModel.h"
#include "platform/KeyCodes.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace brimshade::app {

namespace {

bool isSearchCharacter(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Number_DecimalDigit:
    case QChar::Number_Letter:
    case QChar::Number_Other:
    case QChar::Punctuation_Connector:
    case QChar::Punctuation_Dash:
    case QChar::Punctuation_Open:
    case QChar::Punctuation_Close:
    case QChar::Punctuation_InitialQuote:
    case QChar::Punctuation_FinalQuote:
    case QChar::Punctuation_Other:
    case QChar::Separator_Space:
        return true;
    default:
        return character == U'\t';
    }
}

} // namespace

KeyHandler::KeyHandler(model::NotchModel &model, Close close) : m_model(model), m_close(std::move(close)) { }

std::optional<platform::Event> KeyHandler::handle(const platform::Event &event) const
{
    if (command(event.keyCode) || type(event))
        return {};
    return event;
}

bool KeyHandler::command(std::uint16_t keyCode) const
{
    switch (keyCode) {
    case platform::kVK_Escape:
        escape();
        return true;
    case platform::kVK_Return:
    case platform::kVK_ANSI_KeypadEnter:
        choose();
        return true;
    case platform::kVK_Delete:
        deleteBackward();
        return true;
    case platform::kVK_LeftArrow:
        m_model.moveSelection(-1);
        return true;
    case platform::kVK_RightArrow:
        m_model.moveSelection(1);
        return true;
    case platform::kVK_DownArrow:
        m_model.moveSelection(m_model.columns());
        return true;
    case platform::kVK_UpArrow:
        m_model.moveSelection(-m_model.columns());
        return true;
    default:
        return false;
    }
}

bool KeyHandler::type(const platform::Event &event) const
{
    const bool isShortcut = event.modifierFlags & (platform::kCommandFlag | platform::kControlFlag);
    const QList<uint> characters = event.characters.toUcs4();
    if (isShortcut || characters.isEmpty() || !std::ranges::all_of(characters, isSearchCharacter))
        return false;
    m_model.setQuery(m_model.query() + event.characters);
    return true;
}

void KeyHandler::escape() const
{
    if (m_model.query().isEmpty())
        m_close();
    else
        m_model.setQuery({});
}

void KeyHandler::choose() const
{
    if (const model::MenuExtra *selected = m_model.selectedMatch()) {
        const model::MenuExtra extra = *selected; // the callback may replace the list
        m_model.onSelect(extra);
    }
}

// Takes what a person sees as one character, however many code points it is made of.
void KeyHandler::deleteBackward() const
{
    const QString query = m_model.query();
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, query);
    boundaries.toEnd();
    m_model.setQuery(query.left(std::max<qsizetype>(boundaries.toPreviousBoundary(), 0)));
}

} // namespace brimshade::app
