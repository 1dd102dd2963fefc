#pragma once

#include "../CallOutcome.h"

#include <QAbstractTableModel>
#include <QDateTime>

#include <cstddef>
#include <deque>
#include <optional>

namespace explorer {

/// The requests that the emulator received, oldest first; as many as the emulator keeps.
class EmulatorRequests : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        MethodColumn,
        TargetColumn,
        StatusColumn,
        CodeColumn,
        ColumnCount
    };

    struct Entry {
        std::size_t number = 0;
        QDateTime time;
        QString method;
        QString target;
        Headers headers;  ///< with the token masked
        QByteArray body;
        int status = 0;           ///< 0 for none
        std::optional<int> code;  ///< of the envelope
        bool ended = false;
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Adds requests from the list of the control path, and completes those without a reply.
    void Take(const nlohmann::json& list);
    void Clear();

    /// All requests up to this number are complete here.
    [[nodiscard]] std::size_t CompleteTo() const;

    [[nodiscard]] const Entry& At(int row) const { return m_entries.at(std::size_t(row)); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void DropOldest();

    std::deque<Entry> m_entries;
    qint64 m_bodyBytes = 0;
};

}  // namespace explorer
