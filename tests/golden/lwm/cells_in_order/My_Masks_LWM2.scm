Set( BUF 8192 )

Header( 1 56 54 9 7 )

LWMFileHeader

:cell00

LWMAreaDrawPoly( 1 2 12 5 )

LWMPoly( 3 2 100.25 
   254 1
   254 254
   1 254
     )

:cell01

LWMAreaDrawPoly( 1 3 31 31 )

LWMPoly( 3 0 0 
   100 100
   110 100
   110 110
     )

:cell02

LWMAreaDrawPoly( 1 3 0 0 )

LWMPoly( 3 1 7 
   1 1
   3 1
   2 3
     )
LWMAreaDrawPoly( 1 3 0 0 )

LWMPoly( 3 0 8 
   11 1
   13 1
   12 3
     )

LWMIndexList( 3
        402 99 3 0 0
        399 100 3 0 0
        400 100 3 0 0
        )

LWMEnd

