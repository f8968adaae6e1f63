Set( BUF 8192 )

Header( 1 55 54 55 54 )

LWMFileHeader( 0x300 )

:cell00

LWMAreaDrawPoly( 1 2 5 7 )

LWMPoly3( 3 2 10 30 
   0 155 0
   200 155 255
   200 200 255
     )

LWMIndexList( 1
        500 100 3 0 0
        )

LWMEnd

