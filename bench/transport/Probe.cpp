#include "Probe.h"

#include "../Bench.h"

#include <QProcess>

namespace bench {

double Probe(const std::string& what, const std::string& contender, int nPort)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(TRANSPORT_PROBE),
                  {QString::fromStdString(what), QString::fromStdString(contender), QString::number(nPort)});
    process.waitForFinished(-1);
    Require(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, what + " of " + contender);
    bool bRead = false;
    const double value = process.readAll().trimmed().toDouble(&bRead);
    Require(bRead, what + " of " + contender + " is a number");
    return value;
}

}  // namespace bench
