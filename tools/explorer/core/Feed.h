#pragma once

#include <QAbstractTableModel>
#include <QTime>
#include <QVector>

namespace explorer {

/// Lines in the order of arrival. The oldest are removed when there are too many.
class Feed : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        LevelColumn,
        TextColumn,
        SourceColumn,
        ColumnCount
    };
    static constexpr int kLevelRole = Qt::UserRole;  ///< number of the level
    static constexpr int kMostLines = 5000;
    static constexpr int kInformation = 4;
    static constexpr int kFailure = 6;

    struct Line {
        QTime time;
        int level = 0;
        QString text;
        QString source;
    };

    using QAbstractTableModel::QAbstractTableModel;

    void Append(const Line& line);
    void Clear();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// "Information", "Failure", ...
    static QString LevelName(int level);

private:
    QVector<Line> m_lines;
};

/// The log lines of this process, for the lifetime of the object.
class LogFeed : public Feed {
    Q_OBJECT

public:
    explicit LogFeed(QObject* parent = nullptr);
    ~LogFeed() override;
};

/// The notifications that the user received.
class NotificationFeed : public Feed {
    Q_OBJECT

public:
    explicit NotificationFeed(QObject* parent = nullptr);

    /// The next notification belongs to this outcome.
    void ExpectOutcome(bool succeeded);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int m_nextLevel = 0;
};

}  // namespace explorer
