#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// The object that a JSON text holds. `fault` says where and why it is none, with line and column
/// as editors count them, and stays as it is otherwise.
QJsonObject readJsonText(const QByteArray& text, QString& fault);
