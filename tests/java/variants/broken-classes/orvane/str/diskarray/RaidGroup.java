package orvane.str.diskarray;

/** Has no constructor without arguments. */
public class RaidGroup {
    public int rgnum, level, port, row, width, depth, minimum_capa, lastLBASet, lastLBA, rest_h, rest,
        lumaxcapa, unit_type, unit_type_sub_code;

    public RaidGroup(int rgnum) {
        this.rgnum = rgnum;
    }
}
