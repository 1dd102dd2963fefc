// Fails unless the library's texts are German with the translations in the folder of the first argument.
#include <APIModule.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTranslator translator;
    if (argc != 2 || !translator.load(QLocale(QStringLiteral("de")), QStringLiteral("apimodule"), QStringLiteral("_"),
                                      QString::fromLocal8Bit(argv[1]))) {
        std::cerr << "app: no translation in " << (argc > 1 ? argv[1] : "") << '\n';
        return EXIT_FAILURE;
    }
    QCoreApplication::installTranslator(&translator);

    constexpr int kUnknownCode = 987654;
    const QString text = APIModule::CAPIModule::GetErroCodeInfor(QString(), kUnknownCode, true);
    std::cout << text.toStdString() << '\n';
    return text == QStringLiteral("Der Vorgang ist fehlgeschlagen") ? EXIT_SUCCESS : EXIT_FAILURE;
}
