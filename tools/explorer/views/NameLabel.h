#pragma once

#include <explorer/FieldFacts.h>

#include <QLabel>

namespace explorer {

/// A name such as enableNtpServer, on one line.
class NameLabel : public QLabel {
    Q_OBJECT

public:
    /// @param typeName type of the value, shown in the tool tip
    explicit NameLabel(const QString& name, const QString& typeName = QString());

    /// Adds the facts of the value to the tool tip, and to the description of the field for screen readers.
    void Describe(const FieldFacts& facts);

private:
    const QString m_typeName;
};

}  // namespace explorer
