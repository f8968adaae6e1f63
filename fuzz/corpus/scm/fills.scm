Header( 1 -89 90 -179 180 )
LWMFileHeader
:cell00
LWMAreaFill( 1 1 31 0 )
LWMAreaFill( 2 2 15 15 -32768 )
LWMAreaFill( 16 0 1 0 7.25 )
LWMAreaFill( 32 2 0 0 32767.992 )
macro( Area02X02Poly.scm 1 15 0 3 )
:cell01
LWMIndexList( 2 1 2 3 0 0 768 512 1 0 0 )
LWMEnd
