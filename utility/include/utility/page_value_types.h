// The interpreter's value record, known here by name only.
#pragma once

struct _zval_struct;  // NOLINT(bugprone-reserved-identifier): the engine's name
typedef struct _zval_struct zval;
