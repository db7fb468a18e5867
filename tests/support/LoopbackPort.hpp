#pragma once

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace testing_support {

/// A loopback TCP port of the program's own, bound so that nobody else takes it.
/// Listening, it queues connections and never accepts them; not listening,
/// it refuses them at once.
class LoopbackPort {
 public:
  explicit LoopbackPort(bool listening) : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* any = reinterpret_cast<sockaddr*>(&address);
    if (socket_ < 0 || ::bind(socket_, any, size) != 0 || ::getsockname(socket_, any, &size) != 0 ||
        (listening && ::listen(socket_, 8) != 0)) {
      ::close(socket_);
      throw std::runtime_error("cannot bind a loopback port");
    }
    port_ = ntohs(address.sin_port);
  }
  ~LoopbackPort() { ::close(socket_); }
  LoopbackPort(const LoopbackPort&) = delete;
  LoopbackPort& operator=(const LoopbackPort&) = delete;

  std::uint16_t port() const { return port_; }
  std::string url(const std::string& path) const { return "http://127.0.0.1:" + std::to_string(port_) + path; }
  /// Whether a connection waits to be accepted.
  bool called() const {
    pollfd waiting{socket_, POLLIN, 0};
    return ::poll(&waiting, 1, 0) > 0;
  }

 private:
  int socket_;
  std::uint16_t port_ = 0;
};

}  // namespace testing_support
