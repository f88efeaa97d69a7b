// Compiled by the include tests with the include paths of one layer. It includes a header of that
// layer, and, when asked to, one that the layer must not see; that one first, since a compiler
// stops at a header that it does not find.
#ifdef MIVO_FORBIDDEN_HEADER
#include MIVO_FORBIDDEN_HEADER
#endif
#include MIVO_OWN_HEADER
