#include "Start.h"

#include "Appearance.h"
#include "MainWindow.h"

#include "../core/Session.h"

#include <QApplication>
#include <QIcon>

// Outside any namespace, as the resource compiler requires. Resources of a static library need this call.
static void TakeInResources()
{
    Q_INIT_RESOURCE(explorer);
}

namespace explorer {

void PrepareApplication()
{
    TakeInResources();
#if QT_VERSION_MAJOR == 5
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setOrganizationName(QStringLiteral("APIModule"));
    QCoreApplication::setApplicationName(QStringLiteral("Explorer"));
    QGuiApplication::setDesktopFileName(QStringLiteral("apimodule-explorer"));
}

Windows::Windows(Session& session) : m_session(session)
{
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/explorer/apimodule-explorer.svg")));
    ApplyLanguage(StoredLanguage(session.settings));
    ApplyAppearance(StoredAppearance(session.settings));
    m_session.servers.Retranslate();
    Open();
}

Windows::~Windows()
{
    for (const QPointer<MainWindow>& left : m_left) {
        delete left;
    }
}

void Windows::Open()
{
    m_window = std::make_unique<MainWindow>(m_session);
    connect(m_window.get(), &MainWindow::LanguageChosen, this, &Windows::ChangeLanguage);
    m_window->show();
}

void Windows::ChangeLanguage(const QString& language)
{
    StoreLanguage(m_session.settings, language);
    ApplyLanguage(language);
    m_session.servers.Retranslate();
    MainWindow* const pOld = m_window.release();  // its code is on the stack
    pOld->SaveState();
    Open();
    pOld->hide();
    pOld->deleteLater();
    m_left.emplace_back(pOld);
}

}  // namespace explorer
