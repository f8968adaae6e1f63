Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 1 1 16 3 )
VTPLayer( 5 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 11920 9080 )
      VTPPointXY( 12220 9080 )
      VTPPointXY( 11920 9480 )

VTPIndexList( 1
        400 99 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

