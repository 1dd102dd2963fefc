#pragma once

#include "../CallOutcome.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

class QSettings;

namespace explorer {

/// A finished run. Its record is packed, because a large one takes many times the size of its reply otherwise.
class PastRun {
public:
    explicit PastRun(const CallOutcome& outcome);

    [[nodiscard]] const RunSummary& Summary() const { return m_summary; }
    [[nodiscard]] CallOutcome Outcome() const;
    /// Approximate size in memory.
    [[nodiscard]] qint64 Bytes() const { return m_bytes; }

private:
    RunSummary m_summary;
    std::vector<std::uint8_t> m_record;  // CBOR; empty for none
    qint64 m_bytes;
};

using PastRunPtr = std::shared_ptr<const PastRun>;
using PastRuns = std::vector<PastRunPtr>;

/// The runs of the session, oldest first. Above the limit in bytes, the oldest are removed; the last one always
/// stays.
class History : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        CallColumn,
        ArgumentsColumn,
        ServerColumn,
        EndColumn,
        DurationColumn,
        ColumnCount
    };

    /// @param settings stores the limit; must outlive the history
    explicit History(QSettings& settings, QObject* parent = nullptr);

    void Add(const CallOutcome& outcome);
    void Clear();

    [[nodiscard]] const PastRunPtr& At(int row) const { return m_runs.at(std::size_t(row)); }
    /// The most recent runs of a call, oldest first.
    [[nodiscard]] PastRuns RunsOf(const catalogue::Call& call, std::size_t most) const;
    /// Null if the call has not been run.
    [[nodiscard]] PastRunPtr LastOf(const catalogue::Call& call) const;

    [[nodiscard]] qint64 Bytes() const { return m_bytes; }
    [[nodiscard]] int LimitInMegabytes() const { return m_limit; }
    void SetLimitInMegabytes(int limit);

    /// Whether the runs are saved in a file beside the settings that only the user can read, without session tokens
    /// and without replies that contain tokens.
    [[nodiscard]] bool IsKept() const { return m_bKept; }
    void SetKept(bool kept);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void Append(const PastRunPtr& run);
    void DropOldest();
    [[nodiscard]] QString FileName() const;
    void Load();
    void Write(bool anew, const PastRuns& runs) const;

    QSettings& m_settings;
    std::deque<PastRunPtr> m_runs;
    qint64 m_bytes = 0;
    int m_limit;
    bool m_bKept;
};

}  // namespace explorer
