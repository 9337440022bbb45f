// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A server that never answers.

#ifndef TESSARIN_TESTS_PRINTING_SILENT_SERVER_H
#define TESSARIN_TESTS_PRINTING_SILENT_SERVER_H

#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tessarin::host {

/// A socket on loopback: the system takes connections for it, and nobody reads them.
class SilentServer {
public:
    SilentServer() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto *generic = reinterpret_cast<sockaddr *>(&address);
        if (::bind(socket_, generic, size) == 0 && ::listen(socket_, 64) == 0 &&
            ::getsockname(socket_, generic, &size) == 0) {
            port_ = ntohs(address.sin_port);
        }
    }
    ~SilentServer() { close(); }
    SilentServer(const SilentServer &) = delete;
    SilentServer &operator=(const SilentServer &) = delete;

    /// From now on connections are refused.
    void close()
    {
        if (socket_ >= 0) {
            ::close(std::exchange(socket_, -1));
        }
    }
    /// 0: it does not listen.
    int port() const { return port_; }

private:
    int socket_;
    int port_ = 0;
};

} // namespace tessarin::host

#endif
