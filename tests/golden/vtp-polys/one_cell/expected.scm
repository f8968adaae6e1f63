Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 5 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 7 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 6000 5000 )
      VTPPointXY( 6000 6000 )
      VTPPointXY( 5000 6000 )
      VTPPointXY( 5000 5000 )
   VTPPoly( 2 3 0 )
      VTPPointXY( 7010 7010 )
      VTPPointXY( 7000 7000 )
      VTPPointXY( 7030 7010 )
   VTPPoly( 2 3 0 )
      VTPPointXY( 7010 7010 )
      VTPPointXY( 7030 7010 )
      VTPPointXY( 7000 7020 )
   VTPPoly( 2 3 0 )
      VTPPointXY( 9000 9000 )
      VTPPointXY( 10000 9000 )
      VTPPointXY( 10000 11000 )
   VTPPoly( 2 4 0 )
      VTPPointXY( 11000 11000 )
      VTPPointXY( 11000 9000 )
      VTPPointXY( 12000 9000 )
      VTPPointXY( 12000 12000 )
   VTPPoly( 2 4 0 )
      VTPPointXY( 10000 11000 )
      VTPPointXY( 11000 11000 )
      VTPPointXY( 12000 12000 )
      VTPPointXY( 9000 12000 )
   VTPPoly( 2 3 0 )
      VTPPointXY( 9000 9000 )
      VTPPointXY( 10000 11000 )
      VTPPointXY( 9000 12000 )

VTPIndexList( 1
        400 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

