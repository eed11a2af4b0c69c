// SPDX-License-Identifier: MIT
#include "Geometries.h"

#include <panorel/kit/WindowState.h>

#include <QJsonDocument>

namespace Panorel::Kit::Detail::Geometries {

namespace {

const QLatin1String kitKey("panorel-kit");
const QLatin1String othersKey("userData");
const QLatin1String windowsKey("windows");

} // namespace

QJsonObject settingsIn(const QString& userData)
{
    return QJsonDocument::fromJson(userData.toUtf8()).object().value(kitKey).toObject();
}

QString withSettings(const QString& userData, const QJsonObject& settings)
{
    QJsonObject whole = QJsonDocument::fromJson(userData.toUtf8()).object();
    if (!whole.contains(kitKey)) {
        whole = QJsonObject();
        if (!userData.isEmpty())
            whole.insert(othersKey, userData);
    }
    whole.insert(kitKey, settings);
    return QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Compact));
}

QMap<QString, QByteArray> read(const QJsonObject& settings)
{
    QMap<QString, QByteArray> geometries;
    const QJsonObject windows = settings.value(windowsKey).toObject();
    for (auto window = windows.constBegin(); window != windows.constEnd(); ++window)
        geometries.insert(window.key(),
                          QByteArray::fromBase64(window.value().toString().toLatin1()));
    return geometries;
}

void write(QJsonObject& settings, const QMap<QString, QByteArray>& geometries)
{
    QJsonObject windows;
    for (auto geometry = geometries.cbegin(); geometry != geometries.cend(); ++geometry)
        windows.insert(geometry.key(), QString::fromLatin1(geometry->toBase64()));
    settings.insert(windowsKey, windows);
}

StateMap withToolBars(const StateMap& states, const StateMap& toolBars)
{
    StateMap result = states;
    for (auto state = result.begin(); state != result.end(); ++state) {
        const QByteArray bars = toolBars.value(state.key());
        const QByteArray merged = bars.isEmpty() || bars == *state
                                      ? QByteArray()
                                      : WindowState::merged(WindowState(*state), WindowState(bars));
        if (!merged.isEmpty())
            *state = merged;
    }
    return result;
}

} // namespace Panorel::Kit::Detail::Geometries
