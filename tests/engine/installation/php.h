/* The headers of an installed engine with module API number 20020429, as far as they get in the way of
   whoever includes them: what the module uses is as it is declared under engine/, and besides there is the
   engine's own inside, and names that others have, too. Found in front of those headers by the php-config
   that `run` writes. */
#pragma once

#include_next <php.h>

/* In that engine a structure of its own, as it is linked with the interpreter. */
typedef unsigned int uint;
typedef struct bucket {
  unsigned long h;
  uint nKeyLength;
  void* pData;
  void* pDataPtr;
  struct bucket *pListNext, *pListLast, *pNext, *pLast;
  char arKey[1];
} Bucket;
struct _hashtable {
  uint nTableSize, nTableMask, nNumOfElements;
  unsigned long nNextFreeElement;
  Bucket *pInternalPointer, *pListHead, *pListTail, **arBuckets;
  void (*pDestructor)(void* pDest);
  unsigned char persistent;
};

/* Its own regular expressions, by the names of the C library's. */
typedef struct {
  int re_magic;
  unsigned long re_nsub;
  const char* re_endp;
  struct re_guts* re_g;
} regex_t;

/* Macros by the names of the standard library's functions. */
#define snprintf ap_php_snprintf
#define vsnprintf ap_php_vsnprintf
