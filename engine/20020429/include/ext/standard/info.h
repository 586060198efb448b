/* The information page of the engine with module API number 20020429. The engine declares these for C alone:
   C++ has to be told of the linkage before it reads them. */
#pragma once

/* NOLINTBEGIN(readability-redundant-declaration) */
void php_info_print_table_start(void);
void php_info_print_table_header(int num_cols, ...); /* a char* for each column */
void php_info_print_table_end(void);
/* NOLINTEND(readability-redundant-declaration) */
