#pragma once

#include <explorer/FieldFacts.h>

#include <QCompleter>

namespace explorer {

/// Completes a value from any part of the value or its meaning.
class Completer : public QCompleter {
    Q_OBJECT

public:
    explicit Completer(const QVector<Completion>& completions, QObject* pParent = nullptr);

    [[nodiscard]] QString pathFromIndex(const QModelIndex& index) const override;
};

}  // namespace explorer
