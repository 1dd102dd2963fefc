#include "MainWindow.h"

#include <ErrorLexicon/ErrorLexicon.h>

void Speak(const QString& language)
{
    qDeleteAll(qApp->findChildren<QTranslator*>());
    const QLocale locale(language);
    QLocale::setDefault(locale);
    // TRANSLATIONS: the folders of the libraries' and of this program's translations, separated by a colon.
    for (const QString& folder : QStringLiteral(TRANSLATIONS).split(QLatin1Char(':'))) {
        for (const char* name : {"apimodule", "orngui", "client"}) {
            auto* const translator = new QTranslator(qApp);
            if (translator->load(locale, QLatin1String(name), QStringLiteral("_"), folder)) {
                QCoreApplication::installTranslator(translator);
            }
        }
    }
    ErrorLexicon::SetLanguage(language.toStdString());                         // the texts of failures
    APIModule::CAPIModule::GetInstance().SetLanguage(language.toStdString());  // the language of the server's texts
}

QString FailureText(const APIModule::OutcomeBase& outcome, Access access)
{
    using APIModule::CallEnd;
    QString text = outcome.Text();
    switch (outcome.End()) {
    case CallEnd::Success:
    case CallEnd::Cancelled:          // by this program
    case CallEnd::ApplicationEnding:  // nobody would see it
        return {};
    case CallEnd::NotPacked:
        return MainWindow::tr("You are not signed in.");
    case CallEnd::ServerNotTrusted:
        return MainWindow::tr("This server is not trusted. Nothing was sent.");
    case CallEnd::ReplyTooLarge:
        return MainWindow::tr("The reply is too large.");
    case CallEnd::UnreadableReply:
        return MainWindow::tr("The reply is invalid. %1").arg(outcome.UnreadableKey());
    case CallEnd::Refused:
        return MainWindow::tr("The server refused this: %1 (code %2)").arg(outcome.ServerText()).arg(outcome.Code());
    case CallEnd::HttpStatus:
        return MainWindow::tr("%1 (HTTP status %2)").arg(text).arg(outcome.Code());
    case CallEnd::NoConnection:
    case CallEnd::TimedOut:  // a write is not repeated, and may have reached the server
        return access == Access::Read ? text
                                      : MainWindow::tr("%1. Check whether it was saved before you retry.").arg(text);
    case CallEnd::InvalidRequest:
    case CallEnd::NotAuthenticated:
        break;
    }
    return text;
}
