#pragma once

namespace vorlo {

/// The party on whose behalf the platform runs class initialisation and
/// calls into host code. The platform has one public client.
class VORClient {
 public:
  VORClient() = default;
  VORClient(const VORClient&) = delete;
  VORClient& operator=(const VORClient&) = delete;
};

}  // namespace vorlo

/// The host's public client.
vorlo::VORClient* VORGetPublicClient();
