#pragma once

#include <cstring>
#include <type_traits>

namespace vorlo::factory::impl {

/// Room for one pointer to a native member (a member function pointer, which
/// may be virtual, or a plain function pointer), kept without its type: the
/// function that the record calls with it knows the type and takes it back.
class MemberSlot {
 public:
  MemberSlot() = default;

  template <class Member>
  explicit MemberSlot(Member member) noexcept : empty_(false) {
    static_assert(sizeof(Member) <= sizeof(bytes_) && std::is_trivially_copyable_v<Member>,
                  "a member pointer fits the slot");
    std::memcpy(bytes_, &member, sizeof member);
  }

  bool empty() const noexcept { return empty_; }

  template <class Member>
  Member get() const noexcept {
    Member member;
    std::memcpy(&member, bytes_, sizeof member);
    return member;
  }

 private:
  alignas(alignof(void*)) unsigned char bytes_[2 * sizeof(void*)] = {};
  bool empty_ = true;
};

}  // namespace vorlo::factory::impl
