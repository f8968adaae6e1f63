Set( BUF 8192 )

Header( 1 56 54 9 7 )

LWMFileHeader

:cell00

macro( Area32X32Poly.scm 2 0 0 6 )

:cell01

macro( Area01X01Poly.scm 1 3 4 0 )
LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 3 0 12.5 
   100 100
   200 100
   150 200
     )

:cell02

macro( Area32X32Poly.scm 1 0 0 0 )
LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 3 0 2 
   100 100
   200 100
   150 200
     )

LWMIndexList( 3
        400 99 3 0 0
        400 100 3 0 0
        401 100 3 0 0
        )

LWMEnd

