// A web server that answers every request with the same page.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTcpServer>

class OnePageServer : public QTcpServer {
    Q_OBJECT

  public:
    explicit OnePageServer(QByteArray page);
    QString Address() const { return QStringLiteral("http://127.0.0.1:%1/").arg(serverPort()); }

  private:
    QByteArray page_;
};
