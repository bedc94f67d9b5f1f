package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WZControllerOption {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int id_mode;
    public String id_front;
    public String id_rear;
    public int error_out_mode;
    public int write_verify_mode;
}
