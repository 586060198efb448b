# What makes an error in a program harder to use by somebody else: every program and library moves about in memory
# (position independent), what is resolved at the start cannot be written any more, no stack runs, and overwritten
# return addresses and known buffers are noticed. tests/security/hardening.test looks at what was built.

include(CheckPIESupported)
check_pie_supported()

add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE)
# It needs an optimizing compiler.
add_compile_options($<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
