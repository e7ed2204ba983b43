#pragma once
// What nearly every source includes anyway, parsed once a library. Sources still include what they use.
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <condition_variable>
#include <expected>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <variant>
#include <vector>
#if __has_include(<QPainter>)
#include <QColor>
#include <QImage>
#include <QPainter>
#endif
#if __has_include(<QQuickItem>)
#include <QQmlEngine>
#include <QQuickItem>
#endif
