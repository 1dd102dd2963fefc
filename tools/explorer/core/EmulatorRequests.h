#pragma once

#include "../CallOutcome.h"

#include <QAbstractTableModel>
#include <QDateTime>

#include <cstddef>
#include <deque>
#include <optional>

namespace explorer {

/// The requests that the emulator got, the oldest first: as many of the latest as it keeps itself.
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
        Headers headers;  ///< the token masked
        QByteArray body;
        int status = 0;           ///< 0 for none
        std::optional<int> code;  ///< of the envelope
        bool ended = false;
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Adds requests as the control path lists them, and completes those that had no reply yet.
    void Take(const nlohmann::json& list);
    void Clear();

    /// The number after which requests are missing or incomplete here.
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
