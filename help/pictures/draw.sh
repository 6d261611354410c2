#!/bin/bash
# Draws the pictures of the help with ImageMagick: 16 colours, no smoothing, so that they look the
# same on a display of 256 colours. Run it after a change and commit the pictures it makes.
set -eu
cd "$(dirname "$0")"

draw() { # FILE SIZE DRAWING
    convert -size "$2" xc:white +antialias -font Liberation-Sans -pointsize 12 \
        -fill none -stroke black -draw "$3" \
        +dither -colors 16 -type palette -compress none "BMP3:$1"
}

monitor() { # LEFT SCREEN_COLOUR
    echo "translate $1,0
        stroke black fill #c0c0c0 roundrectangle 0,4 95,75 4,4
        fill #808080 rectangle 8,11 87,67
        stroke none fill $2 rectangle 10,13 85,65
        stroke black fill #c0c0c0 rectangle 35,75 60,80 rectangle 22,80 73,85"
}

arrow() { # LEFT
    echo "push graphic-context translate $1,40 stroke none fill #000080
        rectangle 0,-2 12,2 polygon 12,-7 20,0 12,7 pop graphic-context"
}

label() { # X TEXT
    echo "stroke none fill black text $1,102 '$2'"
}

draw screens.bmp 370x110 "
    push graphic-context $(monitor 4 '#00a0e0')
        stroke none fill #ffff80 circle 30,32 30,24
        fill #00a000 polygon 10,66 34,46 52,58 66,50 86,66
        $(label 2 'Startup screen') pop graphic-context
    $(arrow 107)
    push graphic-context $(monitor 134 '#000080')
        stroke none fill white polygon 38,24 58,24 48,39 polygon 48,39 38,54 58,54
        fill #ffff80 polygon 44,32 52,32 48,38 polygon 40,53 48,46 56,53
        $(label 12 'Wait screen') pop graphic-context
    $(arrow 237)
    push graphic-context $(monitor 264 black)
        stroke none fill #ff8000 rectangle 22,32 73,35 rectangle 28,40 67,43
        $(label -6 'Shutdown screen') pop graphic-context"

folder() { # LEFT
    echo "translate $1,0 stroke black fill #ffff80
        polygon 0,12 0,8 4,4 16,4 20,8 36,8 36,12 rectangle 0,12 38,36"
}

screen() { # TOP COLOUR NAME
    echo "stroke #808080 line 14,$(($1 + 9)) 27,$(($1 + 9))
        stroke black fill $2 rectangle 28,$1 50,$(($1 + 18))
        stroke none fill black text 58,$(($1 + 13)) '$3'"
}

draw sets.bmp 370x124 "
    push graphic-context $(folder 6)
        stroke none fill black text 46,28 'Sunset'
        stroke #808080 line 14,37 14,111
        $(screen 44 '#00a0e0' LOGO.SYS) $(screen 73 '#000080' LOGOW.SYS) $(screen 102 black LOGOS.SYS)
    pop graphic-context
    push graphic-context $(folder 196)
        stroke none fill black text 46,28 'Sunset.SLS'
        stroke #808080 line 14,37 14,53
        $(screen 44 '#00a0e0' LOGO.SYS)
    pop graphic-context"

draw shape.bmp 370x118 "
    stroke black fill #00a0e0 rectangle 4,12 103,87
    stroke none fill #ffff80 ellipse 53,48 25,25 0,360
    fill black text 14,108 'Your picture'
    $(arrow 114)
    stroke black fill #00a0e0 rectangle 146,12 205,87
    stroke none fill #ffff80 ellipse 175,48 15,25 0,360
    fill black text 146,108 'Actual size'
    $(arrow 216)
    push graphic-context $(monitor 254 '#00a0e0')
        stroke none fill #ffff80 ellipse 48,39 17,17 0,360
        fill black text 22,108 'At startup' pop graphic-context"

# A picture twice as wide as high on screens of 76 x 52.
draw framing.bmp 370x118 "
    push graphic-context $(monitor 4 '#00a0e0')
        stroke none fill #ffff80 ellipse 48,39 11,20 0,360
        fill #00a000 rectangle 10,13 16,65 rectangle 79,13 85,65
        $(label 26 'Stretch') pop graphic-context
    push graphic-context $(monitor 134 '#00a0e0')
        stroke none fill #ffff80 ellipse 48,39 20,20 0,360
        $(label 40 'Fill') pop graphic-context
    push graphic-context $(monitor 264 black)
        stroke none fill #00a0e0 rectangle 10,20 85,57
        fill #ffff80 ellipse 48,39 14,14 0,360
        fill #00a000 rectangle 10,20 16,57 rectangle 79,20 85,57
        $(label 42 'Fit') pop graphic-context"

# A bar of eight pieces, whose colours begin with the one of this number.
bar() { # FIRST
    local colours=('#000040' '#000080' '#0000c0' '#0040ff' '#0080ff' '#80c0ff' white '#80c0ff') i
    for ((i = 0; i < 8; i++)); do
        echo "fill ${colours[($1 + i) % 8]} rectangle $((11 + 9 * i)),56 $((19 + 9 * i)),63"
    done
}

scenery() {
    echo "stroke none fill #ffff80 circle 30,28 30,21
        fill #00a000 polygon 10,54 34,36 52,47 66,40 86,54"
}

draw moving.bmp 370x110 "
    push graphic-context $(monitor 4 black) $(scenery) $(bar 0)
        $(label 20 'One step') pop graphic-context
    $(arrow 107)
    push graphic-context $(monitor 134 black) $(scenery) $(bar 2)
        $(label 26 'another') pop graphic-context
    $(arrow 237)
    push graphic-context $(monitor 264 black) $(scenery) $(bar 4)
        $(label 20 'and so on') pop graphic-context"

draw kinds.bmp 370x110 "
    push graphic-context $(monitor 4 '#00a0e0') $(scenery) $(bar 0)
        $(label 36 'Bar') pop graphic-context
    push graphic-context $(monitor 134 '#00a0e0')
        stroke none fill #ffff80 circle 30,26 30,19 fill #0000c0 rectangle 10,42 85,65
        stroke none fill #80c0ff
        rectangle 16,46 24,47 rectangle 44,46 58,47 rectangle 68,50 80,51 rectangle 30,52 36,53
        rectangle 14,57 28,58 rectangle 48,56 62,57 rectangle 70,60 76,61 rectangle 36,61 46,62
        $(label 24 'Shimmer') pop graphic-context
    push graphic-context $(monitor 264 '#000040')
        stroke none fill none stroke #0040ff ellipse 48,39 8,6 0,360 ellipse 48,39 20,15 0,360
        stroke #0080ff ellipse 48,39 14,10 0,360 ellipse 48,39 28,20 0,360
        stroke none fill #00a000 polygon 10,65 10,60 34,46 52,57 66,50 85,62 85,65
        $(label 14 'Background') pop graphic-context"
