// A web server that answers every request with the same page.
#include "web/OnePageServer.h"

#include <QTcpSocket>

OnePageServer::OnePageServer(QByteArray page) : page_(std::move(page)) {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        QTcpSocket* socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            const QByteArray request = socket->readAll();
            if (!request.contains("\r\n\r\n"))
                return;
            asked_ << QString::fromLatin1(request.split(' ').value(1).mid(1));
            socket->write(
                "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\nContent-Length: " +
                QByteArray::number(page_.size()) + "\r\n\r\n" + page_);
            socket->disconnectFromHost();
        });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}
