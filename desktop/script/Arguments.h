#pragma once
#include "platform/Application.h"

#include <QJsonObject>
#include <QPointF>
#include <QSet>
#include <QString>
#include <QStringList>
#include <expected>
#include <optional>

namespace brimshade::desktop {

using namespace Qt::StringLiterals;

// Typed access to one script command. Readers keep the first fault and return a default; finish() reports that fault,
// or names a field that no reader asked for. A command acts only once finish() has reported nothing.
class Arguments {
public:
    explicit Arguments(const QJsonObject &command) : m_command(command) { m_asked.insert(u"do"_s); }

    bool has(const QString &name) const { return m_command.contains(name); }
    double number(const QString &name, std::optional<double> fallback = {});
    int integer(const QString &name, std::optional<int> fallback = {});
    bool boolean(const QString &name);
    QString text(const QString &name, const std::optional<QString> &fallback = {});
    QPointF point(const QString &name);
    std::uint64_t modifiers(); // "modifiers", absent for none, as NSEventModifierFlags
    QJsonValue value(const QString &name);

    void fail(const QString &name, const QString &expected);
    std::optional<QString> finish() const;

private:
    const QJsonValue required(const QString &name, bool isOptional);

    QJsonObject m_command;
    QSet<QString> m_asked;
    std::optional<QString> m_fault;
};

} // namespace brimshade::desktop
