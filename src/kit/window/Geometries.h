// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

/**
 * What the kit keeps beside the layouts, such as size and place of the windows: JSON in the user
 * data of the first group's current view, which no Manager looks at.
 */
namespace Panorel::Kit::Detail::Geometries {

/** The kit's part of @p userData; empty if it has none. */
QJsonObject settingsIn(const QString& userData);
/** @p userData with its kit's part replaced; what others have written there is kept. */
QString withSettings(const QString& userData, const QJsonObject& settings);

/** Window id to the bytes of saveGeometry(). */
QMap<QString, QByteArray> read(const QJsonObject& settings);
void write(QJsonObject& settings, const QMap<QString, QByteArray>& geometries);

/** @p states with the tool bars that @p toolBars have for the same windows. */
StateMap withToolBars(const StateMap& states, const StateMap& toolBars);

} // namespace Panorel::Kit::Detail::Geometries
