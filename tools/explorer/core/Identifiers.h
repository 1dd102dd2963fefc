#pragma once

#include "../CallOutcome.h"
#include "../FieldFacts.h"

#include <QMap>
#include <QObject>

#include <string>

namespace explorer {

/// The identifiers that earlier reads returned, with their names.
class Identifiers : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void Add(const CallOutcome& outcome);
    /// The identifiers for an argument or field: "channelId" for "channelId" and "channelIds", the "id" of a parking
    /// lot for "parkingLotId" and, in a call about parking lots, for "id".
    [[nodiscard]] QVector<Completion> For(const catalogue::Call& call, const QString& name) const;

signals:
    void Changed();

private:
    struct Source {
        QString field;
        QString record;  ///< type of the enclosing record, in lower case
        [[nodiscard]] bool operator<(const Source& other) const;
    };
    using Known = QMap<QString, QString>;  ///< names by identifier

    bool AddInside(const catalogue::Type& type, const nlohmann::json& value);
    bool AddRecord(const catalogue::Type& type, const nlohmann::json& record);

    QMap<Source, Known> m_known;
};

}  // namespace explorer
