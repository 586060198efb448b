/* The information page of the engine with module API number 20020429. */
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

void php_info_print_table_start(void);
void php_info_print_table_header(int num_cols, ...); /* a char* for each column */
void php_info_print_table_end(void);

#ifdef __cplusplus
}
#endif
