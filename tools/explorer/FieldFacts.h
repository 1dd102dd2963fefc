#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace explorer {

/// What the contract states about a value that is sent.
struct FieldFacts {
    QString description;
    QString example;
    QStringList values;  ///< the only values that the server accepts; empty for any
    std::optional<double> minimum;
    std::optional<double> maximum;
};

/// By name; a field inside another one is "<outer>/<name>" where its facts differ.
using FactsByName = QHash<QString, FieldFacts>;

/// A value that can be entered, and its meaning.
struct Completion {
    QString value;
    QString meaning;  ///< may be empty
};

/// The known values of an argument or field with that name.
using Completions = std::function<QVector<Completion>(const QString& name)>;

}  // namespace explorer
