Header( 1 48 47 9 8 )
VTPFileHeader( 0x100 )
:c VTPArea( 2 0 1 1 VTPLayer( 1 1 0 0 )
"open
VTPTextureList( 2 100 2 0 0 4 "a.bmp" 1 1 0 4 "w" )
