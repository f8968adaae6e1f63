Header( 1 56 54 9 7 )

LWMFileHeader

:cell00

macro( Area01X01Poly.scm 0 0 0 1 )

:cell01

macro( Area32X32Poly.scm 2 0 0 4.1 )
macro( Area01X01Poly.scm 1 9 9 0 )

:cell02

macro( Area01X01Poly.scm 0 31 30 12.5 )
macro( Area02X02Poly.scm 1 15 3 99 )
macro( Area04X04Poly.scm 2 7 1 1234.568 )
macro( Area08X08Poly.scm 0 3 2 -3 )
macro( Area16X16Poly.scm 2 1 0 0 )

:cell03

macro( Area32X32Poly.scm 0 0 0 5 )

LWMIndexList( 4
        0 0 3 0 0
        402 99 3 0 0
        400 100 3 0 0
        401 100 3 0 0
        )

LWMEnd

