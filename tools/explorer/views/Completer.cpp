#include "Completer.h"

#include <QAbstractListModel>

namespace explorer {
namespace {

constexpr int kValueRole = Qt::UserRole;

class CompletionModel : public QAbstractListModel {
public:
    CompletionModel(const QVector<Completion>& completions, QObject* pParent)
        : QAbstractListModel(pParent), m_completions(completions)
    {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_completions.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid()) {
            return {};
        }
        const Completion& completion = m_completions.at(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return completion.meaning.isEmpty() ? completion.value
                                                : completion.value + QStringLiteral("  \u00b7  ") + completion.meaning;
        case kValueRole:
            return completion.value;
        default:
            return {};
        }
    }

private:
    const QVector<Completion> m_completions;
};

}  // namespace

Completer::Completer(const QVector<Completion>& completions, QObject* pParent) : QCompleter(pParent)
{
    setModel(new CompletionModel(completions, this));
    setCompletionRole(Qt::DisplayRole);
    setFilterMode(Qt::MatchContains);
    setCaseSensitivity(Qt::CaseInsensitive);
}

QString Completer::pathFromIndex(const QModelIndex& index) const
{
    return index.data(kValueRole).toString();
}

}  // namespace explorer
