// New addressing can cut the connection that asks for it, so a detached thread applies it after the
// request has its answer.
#pragma once

#include <pthread.h>

#include <csignal>
#include <memory>

#include "management_access.h"

// Hands the settings over to the worker, which frees them. The line is the caller's, for the report
// when there is no thread to be had.
template <class Settings>
void startWorker(void* (*worker)(void*), std::unique_ptr<Settings> settings, int line = __builtin_LINE()) {
  // The interpreter's signals (its time limit is one) are for the request's thread: the new thread
  // inherits a mask that blocks them all.
  sigset_t all;
  sigset_t callers;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &callers);
  pthread_t thread = {};
  const int failure = pthread_create(&thread, nullptr, worker, settings.get());
  pthread_sigmask(SIG_SETMASK, &callers, nullptr);
  if (failure != 0) {
    reportFailure("Could not create thread to set network settings", line);
    return;
  }
  settings.release();
  pthread_detach(thread);
}
