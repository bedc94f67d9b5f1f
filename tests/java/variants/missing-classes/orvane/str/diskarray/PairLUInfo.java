package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PairLUInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lun;
    public int capacity;
    public int pool_usedcapa_h;
    public int pool_usedcapa_l;
    public int pool_usedrate;
    public int mirror_count;
    public MirrorLUInfo[] m_info;
}
