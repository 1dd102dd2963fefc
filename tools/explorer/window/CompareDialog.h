#pragma once

#include <QDialog>

#include <nlohmann/json_fwd.hpp>

class QTreeWidget;

namespace explorer {

struct CallOutcome;

/// Where two runs differ: arguments, record, and the exchange as it went.
class CompareDialog : public QDialog {
    Q_OBJECT

public:
    CompareDialog(const CallOutcome& left, const CallOutcome& right, QWidget* pParent = nullptr);

private:
    void Add(const QString& title, const nlohmann::json& left, const nlohmann::json& right);

    QTreeWidget* m_pTree;
};

}  // namespace explorer
