package orvane.str.diskarray;

/** Counts its instances; from instance `failAt` on it holds no bitmap, or its constructor throws. */
public class FibreInformationPermission {
    public static int made;
    public static int failAt = Integer.MAX_VALUE;
    public static boolean throwing;

    public String node_name;
    public String port_name;
    public String n_port_id;
    public byte[] lun_security_bitmap;

    public FibreInformationPermission() {
        if (++made >= failAt && throwing) throw new IllegalStateException("permission " + made);
        lun_security_bitmap = made >= failAt ? null : new byte[256];
    }
}
