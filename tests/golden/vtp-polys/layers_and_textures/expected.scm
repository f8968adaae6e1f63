Set( BUF 8192 )

Header( 1 55 54 9 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 2 1 17 4 )
VTPLayer( 7 0 1 0 )
VTPTexID( 2 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 6000 5000 )
      VTPPointXY( 6300 5000 )
      VTPPointXY( 6000 5400 )
VTPLayer( 9 0 2 0 )
VTPTexID( 3 0 )
VTPPolyCount( 2 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 7000 5000 )
      VTPPointXY( 7300 5000 )
      VTPPointXY( 7000 5400 )
   VTPPoly( 2 3 0 )
      VTPPointXY( 9000 5000 )
      VTPPointXY( 9300 5000 )
      VTPPointXY( 9000 5400 )
VTPTexID( 2 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 8000 5000 )
      VTPPointXY( 8300 5000 )
      VTPPointXY( 8000 5400 )

:cell01

VTPArea( 1 1 15 5 )
VTPLayer( 9 0 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 5000 5000 )
      VTPPointXY( 5300 5000 )
      VTPPointXY( 5000 5400 )

VTPIndexList( 2
        401 100 0
        399 101 0
        )

VTPTextureList( 4
        "a.bmp;b.bmp" 1 0 0 4
        lost 0 0 0 4
        12800
        123 0 0 0 4
        )

VTPEnd

