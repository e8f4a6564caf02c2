// The 32-bit word through which the library tells a host how far it is. The host makes it, the library only writes to it.
#pragma once

#include <cstdint>

namespace btz::cli {

/// The shared word, made for the lifetime of this object. One that exists already is used and left in place: it belongs to another host.
class ProgressWord {
 public:
  ProgressWord();
  ~ProgressWord();
  ProgressWord(const ProgressWord&) = delete;
  ProgressWord& operator=(const ProgressWord&) = delete;

  /// What the library stored last; 0 when there is no word.
  std::int32_t Read() const { return word_ == nullptr ? 0 : *word_; }

  /// Takes the word away from the system, if it was made here; further reads give 0.
  void Remove();

 private:
  const volatile std::int32_t* word_ = nullptr;
#ifdef _WIN32
  void* mapping_ = nullptr;  ///< The system removes the word with its last handle.
#else
  bool isMadeHere_ = false;
#endif
};

}  // namespace btz::cli
