#pragma once

// A bad line to a printing system.

#include <QString>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace tarn::testing {

/// Stands on a loopback port between libcups and a server, in threads of its own.
class CupsProxy {
  public:
    /// What befalls a connection.
    enum class Fault {
        None,
        Silence,       ///< nothing comes through in either direction
        StuckUpload,   ///< after UploadBytes nothing comes through
        HangUp,        ///< after UploadBytes it is closed
        LostAnswer,    ///< the request comes through, the answer does not
        LateAnswer,    ///< the answer comes after LateMs
        DrippingAnswer ///< the answer comes byte by byte, each after a while
    };
    static constexpr qint64 UploadBytes = 20000;
    static constexpr int LateMs = 1500;

    /// One fault for each connection, in their order; the last one is that of all others, too.
    /// `onFault` is called in a thread of the proxy's when an upload gets stuck or is hung up.
    CupsProxy(
        const QString& server, std::vector<Fault> faults, std::function<void()> onFault = [] {});
    ~CupsProxy();
    CupsProxy(const CupsProxy&) = delete;
    CupsProxy& operator=(const CupsProxy&) = delete;

    /// "127.0.0.1:port".
    QString Address() const { return address_; }
    int Connections() const { return connections_; }

  private:
    void Run();
    void Serve(qintptr descriptor, Fault fault);
    void WaitForTheEnd() const;

    quint16 port_; ///< the server's
    std::vector<Fault> faults_;
    std::function<void()> onFault_;
    QString address_;
    std::atomic<int> connections_ = 0;
    std::atomic<bool> listens_ = false;
    std::atomic<bool> over_ = false;
    std::thread thread_;
};

} // namespace tarn::testing
