// Runs code on a thread with a small stack, as a library inside other people's threads must.
#ifndef QUARN_TESTS_SUPPORT_THREAD_H
#define QUARN_TESTS_SUPPORT_THREAD_H

#include <pthread.h>

#include <cstdlib>
#include <functional>

namespace quarn::test {

// 256 KiB; the sanitizers' frames are several times larger.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kSmallStack = 2048 * 1024;
#else
constexpr std::size_t kSmallStack = 256 * 1024;
#endif

inline void on_small_stack(std::function<void()> work) {
  pthread_attr_t attributes;
  pthread_t thread;
  if (pthread_attr_init(&attributes) != 0 ||
      pthread_attr_setstacksize(&attributes, kSmallStack) != 0) {
    std::abort();
  }
  const auto run = [](void *argument) -> void * {
    (*static_cast<std::function<void()> *>(argument))();
    return nullptr;
  };
  if (pthread_create(&thread, &attributes, run, &work) != 0) std::abort();
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

}  // namespace quarn::test

#endif
