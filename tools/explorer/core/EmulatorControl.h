#pragma once

#include <nlohmann/json.hpp>

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

#include <functional>

namespace explorer {

class EmulatorProcess;

/// A reply of the control path of the emulator.
struct ControlReply {
    QString error;        ///< why the request failed; empty on success
    nlohmann::json body;  ///< null without one
};

/// Client of the control path of the emulator that this program starts.
class EmulatorControl : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(const ControlReply&)>;

    /// @param emulator must outlive the object
    explicit EmulatorControl(const EmulatorProcess& emulator, QObject* pParent = nullptr);

    /// @param path path and query below /emulator/v1/
    /// @param body null for none
    /// @param done called with the reply, unless @p pContext was deleted
    void Ask(const char* method, const QString& path, const nlohmann::json& body, QObject* pContext, const Done& done);

private:
    const EmulatorProcess& m_emulator;
    QNetworkAccessManager m_network;
};

}  // namespace explorer
