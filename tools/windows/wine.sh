# Sourced: where programs for Windows find their libraries when they run here. Wants VABO_WINDOWS_PREFIX.

there() { printf 'Z:%s' "${1//\//\\}"; } # a path in the spelling of that system

windows_compiler=/usr/lib/gcc/x86_64-w64-mingw32/12-posix
windows_runtime=/usr/x86_64-w64-mingw32/lib
export WINEARCH=win64 WINEDEBUG=-all
WINEPATH="$(there "$VABO_WINDOWS_PREFIX/bin");$(there "$windows_compiler");$(there "$windows_runtime")"
export WINEPATH
