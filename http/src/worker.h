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
  // The interpreter's timers (its time limit is one) are for the request's thread. A new thread inherits the
  // mask. No other signal: the worker hands its mask on to the device scripts, and a daemon that those start
  // could not be ended.
  sigset_t timers;
  sigset_t callers;
  sigemptyset(&timers);
  for (const int timer : {SIGALRM, SIGVTALRM, SIGPROF}) sigaddset(&timers, timer);
  pthread_sigmask(SIG_BLOCK, &timers, &callers);
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
