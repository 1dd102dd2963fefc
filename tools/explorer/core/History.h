#pragma once

#include "../CallOutcome.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

class QSettings;

namespace explorer {

/// A run that is over, with its record packed: unpacked, a large one takes many times the bytes of its reply.
class PastRun {
public:
    explicit PastRun(const CallOutcome& outcome);

    [[nodiscard]] const RunSummary& Summary() const { return m_summary; }
    [[nodiscard]] CallOutcome Outcome() const;
    /// What it takes in memory, about.
    [[nodiscard]] qint64 Bytes() const { return m_bytes; }

private:
    RunSummary m_summary;
    std::vector<std::uint8_t> m_record;  // CBOR; empty for none
    qint64 m_bytes;
};

using PastRunPtr = std::shared_ptr<const PastRun>;
using PastRuns = std::vector<PastRunPtr>;

/// The runs of the session, the oldest first. When they take more bytes than the limit allows, the oldest go; the last
/// one always stays.
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

    /// @param settings keeps the limit; must outlive the history
    explicit History(QSettings& settings, QObject* parent = nullptr);

    void Add(const CallOutcome& outcome);
    void Clear();

    [[nodiscard]] const PastRunPtr& At(int row) const { return m_runs.at(std::size_t(row)); }
    /// The last runs of a call, at most so many, the oldest first.
    [[nodiscard]] PastRuns RunsOf(const catalogue::Call& call, std::size_t most) const;
    /// Null when it has not been run.
    [[nodiscard]] PastRunPtr LastOf(const catalogue::Call& call) const;

    [[nodiscard]] qint64 Bytes() const { return m_bytes; }
    [[nodiscard]] int LimitInMegabytes() const { return m_limit; }
    void SetLimitInMegabytes(int limit);

    /// Whether the runs are kept in a file beside the settings, which only the user may read: without session tokens,
    /// and without the replies that bring any.
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
