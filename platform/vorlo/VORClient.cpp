#include <vorlo/VORClient.hpp>

vorlo::VORClient* VORGetPublicClient() {
  static vorlo::VORClient client;
  return &client;
}
