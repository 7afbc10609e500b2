#pragma once

namespace tempodial {

/// A character with its case folded (simple folding of the Unicode data, the same in every locale).
char32_t FoldCharacter(char32_t character);

}
