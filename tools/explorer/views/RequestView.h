#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QStackedWidget;
class QTreeWidget;

namespace explorer {

struct RequestDraft;
struct SentRequest;
class CodeView;

/// The request of a call, also as a curl command, as C++ and as an apicall command.
class RequestView : public QWidget {
    Q_OBJECT

public:
    explicit RequestView(QWidget* pParent = nullptr);

    void Show(const RequestDraft& draft);
    /// Shows why there is no request.
    void ShowHint(const QString& text);

private:
    void ShowRequest(const SentRequest& request);

    QStackedWidget* m_pPages;
    QLabel* m_pHint;
    QPlainTextEdit* m_pTarget;
    QTreeWidget* m_pHeaders;
    CodeView* m_pBody;
    CodeView* m_pCurl;
    CodeView* m_pCpp;
    CodeView* m_pApicall;
};

}  // namespace explorer
