#pragma once

#include <nlohmann/json.hpp>

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

#include <functional>

namespace explorer {

class EmulatorProcess;

/// What the control path of the emulator replied.
struct ControlReply {
    QString error;        ///< why nothing was done; empty for a success
    nlohmann::json body;  ///< null without one
};

/// The control path of the emulator that the program starts: its faults, its requests, its state.
class EmulatorControl : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(const ControlReply&)>;

    /// @param emulator must outlive the object
    explicit EmulatorControl(const EmulatorProcess& emulator, QObject* pParent = nullptr);

    /// @param path behind /emulator/v1/, with its query
    /// @param body null for none
    /// @param done is called later, unless @p pContext is deleted before
    void Ask(const char* method, const QString& path, const nlohmann::json& body, QObject* pContext, const Done& done);

private:
    const EmulatorProcess& m_emulator;
    QNetworkAccessManager m_network;
};

}  // namespace explorer
