// An extension module that does what no module may do, a function for each fault. It takes the module's place
// in the tests beside it: a sanitizer that says nothing of them would say nothing of the module either.
#include <pthread.h>

#include <climits>
#include <cstdlib>
#include <cstring>

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include <php.h>
// clang-format on

namespace {

// Never inlined and through volatile: the compiler is not to see what happens and leave it out.
char* volatile lost = nullptr;
volatile int number = INT_MAX;
volatile int* shared = nullptr;

void* count(void*) {
  for (int i = 0; i < 1000; ++i) *shared = *shared + 1;
  return nullptr;
}

}  // namespace

ZEND_BEGIN_ARG_INFO(noArguments, 0)
ZEND_END_ARG_INFO()

// Behind the end of a block.
PHP_FUNCTION(planted_overflow) {
  char* volatile block = static_cast<char*>(std::malloc(8));
  block[8] = 'x';
  std::free(block);
}

PHP_FUNCTION(planted_use_after_free) {
  char* volatile block = static_cast<char*>(std::malloc(8));
  std::free(block);
  RETURN_BOOL(block[0] == 'x');
}

// Behind the end of a block of the engine's own memory.
PHP_FUNCTION(planted_engine_overflow) {
  char* volatile block = static_cast<char*>(emalloc(8));
  block[8] = 'x';
  efree(block);
}

PHP_FUNCTION(planted_leak) {
  lost = static_cast<char*>(std::malloc(77));
  lost = nullptr;
}

PHP_FUNCTION(planted_uninitialized) {
  char* volatile block = static_cast<char*>(std::malloc(8));
  const bool answer = block[3] == 'x';
  std::free(block);
  if (answer) std::abort();
}

PHP_FUNCTION(planted_signed_overflow) { number = number + 1; }

PHP_FUNCTION(planted_race) {
  static int counted = 0;
  shared = &counted;
  pthread_t threads[2];
  for (pthread_t& thread : threads) pthread_create(&thread, nullptr, count, nullptr);
  for (const pthread_t thread : threads) pthread_join(thread, nullptr);
}

static const zend_function_entry functions[] = {
    PHP_FE(planted_overflow, noArguments) PHP_FE(planted_use_after_free, noArguments)
        PHP_FE(planted_engine_overflow, noArguments) PHP_FE(planted_leak, noArguments)
            PHP_FE(planted_uninitialized, noArguments) PHP_FE(planted_signed_overflow, noArguments)
                PHP_FE(planted_race, noArguments) PHP_FE_END};

static zend_module_entry planted_module = {
    STANDARD_MODULE_HEADER,     "planted", functions, nullptr, nullptr, nullptr, nullptr, nullptr, "0.1",
    STANDARD_MODULE_PROPERTIES,
};

extern "C" __attribute__((visibility("default"))) zend_module_entry* get_module() { return &planted_module; }
