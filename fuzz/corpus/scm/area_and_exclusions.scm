Set( BUF 8192 )
Header( 1 48 47 9 8 )
VTPFileHeader( 0x100 )

:cell00
VTPArea( 1 1 17 24 )
VTPLayer( 4 0 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 4079 4079 )
      VTPPointXY( 8160 5000 )
      VTPPointXY( 0 65535 )

:cell01

VTPArea( 2 0 7 31 )
    VTPLayer( 64 1 0 0 )
    VTPLayer( 100 1 0 0 )
VTPArea( 0 0 8 31 )

VTPIndexList( 2
        401 120 0
        402 121 0
        )

VTPTextureList( 1
100 2 0 0 4 )

VTPEnd
