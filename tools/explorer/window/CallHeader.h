#pragma once

#include "../core/CallIndex.h"

#include <QWidget>

class QLabel;
class QToolButton;

namespace explorer {

/// Name, endpoint and purpose of a call, and whether it is a favourite.
class CallHeader : public QWidget {
    Q_OBJECT

public:
    explicit CallHeader(QWidget* pParent = nullptr);

    void Show(const catalogue::Call& call, const Endpoint& endpoint, bool favourite);

signals:
    void FavouriteToggled(bool favourite);

private:
    QLabel* m_pName;
    QLabel* m_pEndpoint;
    QLabel* m_pSummary;
    QToolButton* m_pFavourite;
    QString m_path;
};

}  // namespace explorer
