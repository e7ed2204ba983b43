#pragma once
#include "composition/Session.h"

#include <random>

namespace brimshade::menubar {
struct MenuExtra;
}
namespace brimshade::model {
class NotchModel;
}

namespace brimshade::soak {

// The person in front of the desktop: opens the panel in every way, searches, chooses, hides and shows items, looks
// into the windows. Reports and counts whatever does not turn out as it should.
class Person {
public:
    explicit Person(composition::Session &session);

    void openAndClose(int way); // the panel, in one of four ways
    void moveAnItem(); // to the other side of the icon
    void lookIntoSettings();
    void lookIntoSetup();
    void wait(double seconds);

    int openings() const { return m_openings; }
    int moves() const { return m_moves; }
    int faults() const { return m_faults; }

private:
    QJsonObject run(const QString &command, QJsonObject arguments = {});
    void click(QPointF at);
    void key(int code, const QString &characters, const QStringList &modifiers = {});
    void opened();
    void closeAndCheck();
    void chooseFirstMatch();
    void hover();
    void closeWindow(const QString &name);
    QPointF icon(); // of Brimshade in the bar
    const menubar::MenuExtra *itemToMove();
    void expect(bool holds, const char *what);

    composition::Session &m_session;
    model::NotchModel &m_model;
    std::mt19937 m_random; // the same in every run
    int m_openings = 0;
    int m_moves = 0;
    int m_faults = 0;
};

} // namespace brimshade::soak
