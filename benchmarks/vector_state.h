// The state in which a job finds the vector registers.
#pragma once

namespace bench {

// Makes the upper halves of the wide registers unused again. A 32-bit program that is interrupted in the middle of wide
// code comes back with all sixteen in use, of which VZEROUPPER clears the eight that it sees; until the next such
// interruption every 128-bit instruction without a VEX prefix then takes up to four times as long, on some processors.
// Does nothing on processors without wide registers.
void ForgetUpperHalves();

}  // namespace bench
