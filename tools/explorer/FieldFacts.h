#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace explorer {

/// What the contract says about a value that is sent.
struct FieldFacts {
    QString description;
    QString example;
    QStringList values;  ///< the only ones that the server takes; empty for any
    std::optional<double> minimum;
    std::optional<double> maximum;
};

/// By name; the facts of a field inside of another one by "<the other one>/<name>", where they differ.
using FactsByName = QHash<QString, FieldFacts>;

/// A value that can be entered, and what it stands for.
struct Completion {
    QString value;
    QString meaning;  ///< may be empty
};

/// The values that are known for an argument or a field of that name.
using Completions = std::function<QVector<Completion>(const QString& name)>;

}  // namespace explorer
