/* The engine with module API number 20020429, neither a debug build nor thread-safe: as much of its
   interface as the module and the utility library use. Structures and prototypes only; the engine itself
   is in the interpreter that loads the module. To be read as C and as C++. */
#pragma once

#include <stddef.h>

#define ZEND_MODULE_API_NO 20020429
#define ZEND_DEBUG 0

#define SUCCESS 0
#define FAILURE (-1)

#define E_WARNING 2

#ifdef __cplusplus
extern "C" {
#endif

/* Values. Texts are held with their length, which leaves out the terminating NUL. */

typedef struct _hashtable HashTable;
typedef struct _zend_class_entry zend_class_entry;

typedef union {
  long lval; /* also a boolean, as 0 or 1 */
  double dval;
  struct {
    char* val;
    int len;
  } str;
  HashTable* ht;
  struct {
    zend_class_entry* ce;
    HashTable* properties;
  } obj;
} zvalue_value;

typedef struct _zval_struct {
  zvalue_value value;
  unsigned char type;
  unsigned char is_ref;
  unsigned short refcount;
} zval;

#define IS_NULL 0
#define IS_LONG 1
#define IS_DOUBLE 2
#define IS_STRING 3
#define IS_ARRAY 4
#define IS_OBJECT 5
#define IS_BOOL 6

#define Z_TYPE_P(pointer) ((pointer)->type)
#define Z_LVAL_P(pointer) ((pointer)->value.lval)
#define Z_DVAL_P(pointer) ((pointer)->value.dval)
#define Z_STRVAL_P(pointer) ((pointer)->value.str.val)
#define Z_STRLEN_P(pointer) ((pointer)->value.str.len)
#define Z_ARRVAL_P(pointer) ((pointer)->value.ht)
#define Z_OBJPROP_P(pointer) ((pointer)->value.obj.properties)

/* A fresh value: one holder, and no reference. */
#define INIT_PZVAL(pointer) ((pointer)->refcount = 1, (pointer)->is_ref = 0)

/* Memory of the engine, given back by the engine with the value that holds it. */

void* _emalloc(size_t size);
char* _estrndup(const char* text, unsigned int length);

#define emalloc(size) _emalloc(size)
#define estrndup(text, length) _estrndup((text), (length))

/* Functions of a module. ht is the number of arguments that a call passes. */

#define INTERNAL_FUNCTION_PARAMETERS int ht, zval *return_value, zval *this_ptr, int return_value_used
#define ZEND_NUM_ARGS() (ht)
#define PHP_FUNCTION(name) void zif_##name(INTERNAL_FUNCTION_PARAMETERS)

typedef struct _zend_function_entry {
  char* fname;
  void (*handler)(INTERNAL_FUNCTION_PARAMETERS);
  unsigned char* func_arg_types; /* null: nothing is passed by reference */
} zend_function_entry;

/* In C++ the name is a constant text where a changeable one is wanted. */
#define PHP_FE(name, arg_types) {#name, zif_##name, (arg_types)},

/* -1 after a warning to the page when the arguments do not fit; "o" writes a zval*, "s" a char* and an
   int, "l" a long, "b" an unsigned char. */
int zend_parse_parameters(int num_args, char* type_spec, ...);

/* A module's record. */

typedef struct _zend_module_entry zend_module_entry;
struct _zend_module_entry {
  unsigned short size;
  unsigned int zend_api;
  unsigned char zend_debug;
  unsigned char zts;
  char* name;
  zend_function_entry* functions;
  int (*module_startup_func)(int type, int module_number);
  int (*module_shutdown_func)(int type, int module_number);
  int (*request_startup_func)(int type, int module_number);
  int (*request_shutdown_func)(int type, int module_number);
  void (*info_func)(zend_module_entry* zend_module);
  char* version;
  int (*global_startup_func)(void);
  int (*global_shutdown_func)(void);
  int globals_id;
  /* the engine's own */
  int module_started;
  unsigned char type;
  void* handle;
  int module_number;
};

#define STANDARD_MODULE_HEADER sizeof(zend_module_entry), ZEND_MODULE_API_NO, ZEND_DEBUG, 0
#define STANDARD_MODULE_PROPERTIES NULL, NULL, 0, 0, 0, NULL, 0

#define PHP_MINIT(module) zm_startup_##module
#define PHP_MSHUTDOWN(module) zm_shutdown_##module
#define PHP_RINIT(module) zm_activate_##module
#define PHP_RSHUTDOWN(module) zm_deactivate_##module
#define PHP_MINFO(module) zm_info_##module

#define PHP_MINIT_FUNCTION(module) int PHP_MINIT(module)(int type, int module_number)
#define PHP_MSHUTDOWN_FUNCTION(module) int PHP_MSHUTDOWN(module)(int type, int module_number)
#define PHP_RINIT_FUNCTION(module) int PHP_RINIT(module)(int type, int module_number)
#define PHP_RSHUTDOWN_FUNCTION(module) int PHP_RSHUTDOWN(module)(int type, int module_number)
#define PHP_MINFO_FUNCTION(module) void PHP_MINFO(module)(zend_module_entry * zend_module)

/* Objects and arrays. Each call answers SUCCESS or FAILURE. key_len counts the terminating NUL; a
   duplicate other than 0 makes the engine copy the text. */

int _object_init(zval* value);
int _array_init(zval* value);
int add_property_bool_ex(zval* object, char* key, unsigned int key_len, int flag);
int add_property_long_ex(zval* object, char* key, unsigned int key_len, long number);
int add_property_string_ex(zval* object, char* key, unsigned int key_len, char* text, int duplicate);
int add_next_index_string(zval* array, char* text, int duplicate);
int add_next_index_zval(zval* array, zval* value); /* the array becomes the value's holder */

/* data receives the address of a zval*. */
int zend_hash_find(HashTable* table, char* key, unsigned int key_len, void** data);

#define object_init(value) _object_init(value)
#define array_init(value) _array_init(value)

int zend_is_true(zval* value);

#ifdef __cplusplus
}
#endif

/* A warning or notice of the function that runs, with the place in the page. The engine declares it for C
   alone: C++ has to be told of the linkage before it reads this. */
/* NOLINTNEXTLINE(readability-redundant-declaration) */
void php_error_docref0(const char* docref, int type, const char* format, ...)
    __attribute__((format(printf, 3, 4)));

#define php_error_docref php_error_docref0
