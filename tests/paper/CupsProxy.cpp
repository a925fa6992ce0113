#include "paper/CupsProxy.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn::testing {

namespace {

constexpr int PatienceMs = 30000;
constexpr int TurnMs = 2;
constexpr int DripMs = 20;

void Pass(QTcpSocket& to, const QByteArray& bytes) {
    to.write(bytes);
    while (to.bytesToWrite() > 0 && to.waitForBytesWritten(PatienceMs)) {
    }
}

/// Takes connections as they are, for another thread.
class Listener : public QTcpServer {
  public:
    std::vector<qintptr> Taken;

  protected:
    void incomingConnection(qintptr descriptor) override { Taken.push_back(descriptor); }
};

bool Open(const QTcpSocket& socket) {
    return socket.state() == QAbstractSocket::ConnectedState;
}

} // namespace

CupsProxy::CupsProxy(const QString& server, std::vector<Fault> faults,
                     std::function<void()> onFault)
    : port_(server.section(u':', 1).toUShort())
    , faults_(std::move(faults))
    , onFault_(std::move(onFault))
    , thread_([this] { Run(); }) {
    while (!listens_) {
        std::this_thread::yield();
    }
}

CupsProxy::~CupsProxy() {
    over_ = true;
    thread_.join();
}

void CupsProxy::Run() {
    Listener server;
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    address_ = QStringLiteral("127.0.0.1:%1").arg(server.serverPort());
    listens_ = true;
    std::vector<std::thread> threads;
    while (!over_) {
        server.waitForNewConnection(TurnMs);
        for (const qintptr client : server.Taken) {
            const auto place = static_cast<std::size_t>(connections_++);
            const Fault fault = faults_.at(std::min(place, faults_.size() - 1));
            threads.emplace_back([this, client, fault] { Serve(client, fault); });
        }
        server.Taken.clear();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

void CupsProxy::WaitForTheEnd() const {
    while (!over_) {
        QThread::msleep(TurnMs);
    }
}

void CupsProxy::Serve(qintptr descriptor, Fault fault) {
    QTcpSocket client;
    EXPECT_TRUE(client.setSocketDescriptor(descriptor));
    if (fault == Fault::Silence) {
        return WaitForTheEnd();
    }
    QTcpSocket server;
    server.connectToHost(QHostAddress(QHostAddress::LocalHost), port_);
    if (!server.waitForConnected(PatienceMs)) {
        return; // it is down
    }
    client.setReadBufferSize(UploadBytes);
    qint64 passed = 0;
    while (!over_ && Open(client) && Open(server)) {
        client.waitForReadyRead(TurnMs);
        const QByteArray request = client.readAll();
        passed += request.size();
        Pass(server, request);
        const bool upload = fault == Fault::StuckUpload || fault == Fault::HangUp;
        if (upload && passed >= UploadBytes) {
            onFault_();
            return fault == Fault::StuckUpload ? WaitForTheEnd() : void();
        }
        server.waitForReadyRead(TurnMs);
        const QByteArray answer = server.readAll();
        const bool last = !answer.isEmpty() && !answer.startsWith("HTTP/1.1 100");
        if (last && fault == Fault::LostAnswer) {
            return WaitForTheEnd();
        }
        if (last && fault == Fault::LateAnswer) {
            QThread::msleep(LateMs);
            fault = Fault::None; // the rest of it is in time
        }
        if (last && fault == Fault::DrippingAnswer) {
            for (qsizetype i = 0; i < answer.size() && Open(client) && !over_; ++i) {
                Pass(client, answer.mid(i, 1));
                client.waitForReadyRead(DripMs); // notices, too, that it was closed
            }
            return;
        }
        Pass(client, answer);
    }
}

} // namespace tarn::testing
