package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PoolDetailCapa {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int pool_no;
    public int poolcapa_h;
    public int poolcapa_l;
}
