#pragma once

#include <QDialog>

#include <nlohmann/json_fwd.hpp>

class QTreeWidget;

namespace explorer {

struct CallOutcome;

/// The differences of two runs: arguments, record and exchange.
class CompareDialog : public QDialog {
    Q_OBJECT

public:
    CompareDialog(const CallOutcome& left, const CallOutcome& right, QWidget* pParent = nullptr);

private:
    void Add(const QString& title, const nlohmann::json& left, const nlohmann::json& right);

    QTreeWidget* m_pTree;
};

}  // namespace explorer
