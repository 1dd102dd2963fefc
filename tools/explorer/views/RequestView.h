#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QStackedWidget;
class QTreeWidget;

namespace explorer {

struct CallOutcome;
struct SentRequest;
class CodeView;

/// What went out for a call, and the same as a curl command and as C++ lines.
class RequestView : public QWidget {
    Q_OBJECT

public:
    explicit RequestView(QWidget* pParent = nullptr);

    void Show(const CallOutcome& outcome);
    void Clear();

private:
    void ShowRequest(const SentRequest& request);

    QStackedWidget* m_pPages;
    QPlainTextEdit* m_pTarget;
    QTreeWidget* m_pHeaders;
    QLabel* m_pNothingSent;
    CodeView* m_pBody;
    CodeView* m_pCurl;
    CodeView* m_pCpp;
};

}  // namespace explorer
