// A web server that answers every request with the same page.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTcpServer>

class OnePageServer : public QTcpServer {
    Q_OBJECT

  public:
    explicit OnePageServer(QByteArray page);
    QString Address() const { return QStringLiteral("http://127.0.0.1:%1/").arg(serverPort()); }
    /// The paths that were asked for, in their order, without the first slash.
    const QStringList& Asked() const { return asked_; }

  private:
    QByteArray page_;
    QStringList asked_;
};
