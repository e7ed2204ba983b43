#include "StateReport.h"
#include "app/AppDelegate.h"
#include "controls/Divider.h"
#include "model/NotchModel.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace brimshade::composition {

namespace {

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject extraReport(const menubar::MenuExtra &extra)
{
    const QRectF &frame = extra.frame;
    return {{u"id"_s, extra.id},
            {u"name"_s, extra.name},
            {u"detail"_s, extra.detail},
            {u"symbol"_s, extra.symbol ? QJsonValue(*extra.symbol) : QJsonValue()},
            {u"hasIcon"_s, !extra.icon.isNull()},
            {u"tint"_s, extra.tint.name()},
            {u"frame"_s, QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()}},
            {u"isHidden"_s, extra.isHidden},
            {u"canMove"_s, extra.canMove}};
}

QJsonArray idsOf(const model::NotchModel &model, const model::NotchModel::Matches &matches)
{
    QJsonArray ids;
    for (const int index : matches)
        ids.append(model.extras()[index].id);
    return ids;
}

QJsonArray shortcutsReport(const model::ItemShortcuts &shortcuts)
{
    QJsonArray report;
    for (const model::ItemShortcut &each : shortcuts.all())
        report.append(
            QJsonObject{{u"item"_s, each.item}, {u"name"_s, each.name}, {u"keys"_s, displayTitle(each.keys)}});
    return report;
}

QJsonObject modelReport(const model::NotchModel &model)
{
    QJsonArray extras;
    for (const menubar::MenuExtra &extra : model.extras())
        extras.append(extraReport(extra));
    const QSizeF panel = model.panelSize();
    return {{u"isOpen"_s, model.isOpen()},
            {u"extras"_s, extras},
            {u"scanned"_s, model.scanned()},
            {u"trusted"_s, model.trusted()},
            {u"hoveredID"_s, textOrNull(model.hoveredID())},
            {u"query"_s, model.query()},
            {u"selectedID"_s, textOrNull(model.selectedID())},
            {u"notch"_s, QJsonArray{model.notch().width(), model.notch().height()}},
            {u"movingID"_s, textOrNull(model.movingID())},
            {u"isRecording"_s, model.isRecording()},
            {u"message"_s, textOrNull(model.message())},
            {u"showVisible"_s, model.showVisible()},
            {u"hoverToOpen"_s, model.hoverToOpen()},
            {u"shortcut"_s, rawValue(model.shortcut())},
            {u"itemShortcuts"_s, shortcutsReport(model.itemShortcuts())},
            {u"dividerEnabled"_s, model.dividerEnabled()},
            {u"launchAtLogin"_s, model.launchAtLogin()},
            {u"hiddenMatches"_s, idsOf(model, model.hiddenMatches())},
            {u"visibleMatches"_s, idsOf(model, model.visibleMatches())},
            {u"hiddenCount"_s, model.hiddenCount()},
            {u"columns"_s, model.columns()},
            {u"panelSize"_s, QJsonArray{panel.width(), panel.height()}}};
}

QJsonValue dividerReport(const controls::Divider *divider)
{
    if (!divider)
        return {};
    const std::optional<double> anchor = divider->anchor();
    return QJsonObject{{u"isExpanded"_s, divider->isExpanded()},
                       {u"isEnabled"_s, divider->isEnabled()},
                       {u"anchor"_s, anchor ? QJsonValue(*anchor) : QJsonValue()},
                       {u"slack"_s, divider->slack()}};
}

} // namespace

QJsonObject stateReport(app::AppDelegate &delegate)
{
    return {{u"model"_s, modelReport(delegate.model())},
            {u"shown"_s, delegate.shown()},
            {u"divider"_s, dividerReport(delegate.divider())}};
}

} // namespace brimshade::composition
