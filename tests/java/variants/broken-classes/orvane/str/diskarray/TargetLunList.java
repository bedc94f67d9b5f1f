package orvane.str.diskarray;

/** Counts its instances; instance `failAt` holds no LUN map. */
public class TargetLunList {
    public static int made;
    public static int failAt = Integer.MAX_VALUE;

    public byte[] lun;

    public TargetLunList() {
        lun = ++made == failAt ? null : new byte[128];
    }
}
